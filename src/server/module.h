// The library as registry and class factory know it. The composition fills it in.
#pragma once

#include "com/control_class.h"
#include "com/control_client.h"

namespace vellora::server {

struct Module {
    /// Also the source of errors that name none.
    const char16_t* name;
    GUID type_library;
    WORD major;
    WORD minor;
    com::ControlClass control;
    /// Name scripts create the control by, and the same with the version.
    const wchar_t* program_id;
    const wchar_t* versioned_program_id;
    /// Number of the bitmap resource that stands for the control in tool boxes.
    int toolbox_bitmap;
    com::ClientFactory make_client;
};

/// The one this library is built for.
const Module& module() noexcept;

} // namespace vellora::server
