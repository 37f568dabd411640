#include "control/accessibility.h"

#include "control/control_object.h"
#include "dropdown/drop_down.h"

namespace vellora {

std::u16string Accessibility::name() const {
    const auto held = core_.site.keep_alive();
    return core_.site.display_name();
}

bool Accessibility::write(std::u16string_view text) {
    if (!core_.state.mbEnabled || core_.state.mbLocked) {
        return false;
    }
    const auto held = core_.site.keep_alive();
    if (!object_.may_change_text()) {
        return false;
    }
    object_.write_text(text);
    return true;
}

bool Accessibility::press_button() {
    if (!core_.state.mbEnabled) {
        return false;
    }
    const auto held = core_.site.keep_alive();
    if (expanded()) {
        drop_down_.HideList();
    } else {
        drop_down_.ShowList();
    }
    return true;
}

} // namespace vellora
