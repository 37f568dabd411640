// What is the same for all instances of a control: its identifiers and names.
#pragma once

#include "com/page_class.h"

namespace vellora::com {

struct ControlClass {
    CLSID class_id;
    /// The dual interface that is the control's default one, and the interface of its events.
    IID default_interface;
    IID events_interface;
    /// "Name of the control" as containers show it; also stands in for the name of an instance.
    const wchar_t* user_type;
    /// Its property pages, in the order they are shown.
    std::span<const PageClass> pages = {};
};

/// How containers have to treat the control (OLEMISC).
inline constexpr DWORD misc_status = OLEMISC_RECOMPOSEONRESIZE | OLEMISC_CANTLINKINSIDE | OLEMISC_INSIDEOUT |
                                     OLEMISC_ACTIVATEWHENVISIBLE | OLEMISC_SETCLIENTSITEFIRST;

} // namespace vellora::com
