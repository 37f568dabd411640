// What the controls of the form show. Read these to learn how a control is filled: columns first, since
// changing their number empties the list, then the rows.
#pragma once

#include "list_data.h"
#include "hosting/saved_settings.h"

#include <VelloraCTL.h>

namespace vellora::samples {

struct BoxDefinition {
    const wchar_t* name;
    /// What a form designer would have saved.
    SavedSettings::Values settings;
    /// Throws a Failure when the control refuses something.
    void (*fill)(_Vellora& control, const ListData& data);
    /// Whether the open list is as wide as the form, or else as the control.
    bool wide_list;
};

/// In the order of the form: left, right, next row.
const std::vector<BoxDefinition>& box_definitions();

} // namespace vellora::samples
