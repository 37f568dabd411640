#include "control/state.h"

#include <cstddef>

namespace vellora {

void subResetColumns(ControlState& state, std::int16_t& FromColumn) {
    if (FromColumn < 1) {
        FromColumn = 1;
    }
    for (auto slot = static_cast<std::size_t>(FromColumn - 1); slot < maximum_columns; ++slot) {
        state.masColumnHeader[slot].clear();
        state.masngColumnWidth[slot] = automatic_width;
    }
}

} // namespace vellora
