// The headless drop button: a press takes capture and focus, and only a press that kept both clicks.
#include "support/headless/check_button.h"

namespace vellora::test {

void HeadlessCheckButton::set_value(int value) {
    if (value == value_) {
        return;
    }
    value_ = value;
    if (listener_ != nullptr) {
        listener_->button_clicked(index_);
    }
}

void HeadlessCheckButton::press() {
    if (!visible() || !enabled()) {
        return;
    }
    pressed_ = true;
    desktop().set_capture(window());
    if (listener_ != nullptr) {
        listener_->button_pressed(index_);
    }
    desktop().set_focus(window());
}

void HeadlessCheckButton::release() {
    const bool clicks = desktop().capture() == window() && visible();
    desktop().set_capture(0);
    pressed_ = false;
    if (listener_ != nullptr) {
        listener_->button_released(index_);
    }
    if (clicks) {
        set_value(1 - value_);
    }
}

} // namespace vellora::test
