// What assistive software is told of the control, and what it may do in the user's place.
#pragma once

#include "control/core.h"

#include <string>
#include <string_view>

namespace vellora {

class ControlObject;
class DropDown;

class Accessibility {
public:
    Accessibility(ControlCore& core, ControlObject& object, DropDown& drop_down)
        : core_(core), object_(object), drop_down_(drop_down) {}

    /// The instance's name on its form, for a control that has no label.
    std::u16string name() const;
    /// The text of the field.
    std::u16string value() const { return core_.live_text_box().text(); }
    bool expanded() const { return core_.state.mlStatic_hWnd != 0; }

    /// Writes the text as a program would. False, with nothing done, where a user could not write it: in a disabled or
    /// a locked control, or when the host refuses.
    bool write(std::u16string_view text);
    /// Presses the drop button. False where a user could not: in a disabled control.
    bool press_button();

private:
    ControlCore& core_;
    ControlObject& object_;
    DropDown& drop_down_;
};

} // namespace vellora
