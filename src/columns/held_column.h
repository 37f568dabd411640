// Which columns a user may not size, be it by mouse or by keys.
#pragma once

#include "control/state.h"
#include "runtime/checked.h"

namespace vellora {

/// Hidden or locked. Columns are 1-based; error 9 outside 1 to 50.
inline bool is_column_held(const ControlState& state, std::int32_t column) {
    const std::size_t slot = checked_slot(column, maximum_columns);
    return state.mabColumnHidden[slot] || state.mabColumnLocked[slot];
}

} // namespace vellora
