#include "control/core.h"

#include "runtime/host_error.h"

#include <cstddef>
#include <string>

namespace vellora {

TextBox& ControlCore::live_text_box() const {
    const auto element = static_cast<std::size_t>(state.mlAlignment);
    if (state.mlAlignment < 0 || element >= parts.txtTextProperty.size()) {
        throw HostError(error_number::control_array_element_missing);
    }
    return *parts.txtTextProperty[element];
}

void ControlCore::property_changed(std::u16string_view name) {
    if (!state.mbLoadingProperties) {
        site.property_changed(name);
    }
}

void ControlCore::raise(std::int32_t number, std::u16string_view description) const {
    throw HostError(number, site.display_name(), std::u16string(description));
}

} // namespace vellora
