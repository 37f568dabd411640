// What the control does with keys, changes and the mouse in its text field.
#pragma once

#include "control/core.h"

#include <cstdint>

namespace vellora {

class ControlObject;
class DropDown;
class Selection;

class TextField {
public:
    TextField(ControlCore& core, ControlObject& object, Selection& selection, DropDown& drop_down);

    bool AutoComplete() const;
    void put_AutoComplete(bool value);

    /// Up and Down step through the rows, F4 opens the list. Keys with Shift, Ctrl or Alt are left alone and raise
    /// nothing.
    void key_down(std::int16_t& key_code, std::int16_t& shift);
    /// Swallows the key-up of a bare F4.
    void key_up(std::int16_t& key_code, std::int16_t& shift);
    /// Completes what was typed against the text column, then raises Change. A deletion, or an empty text, does
    /// neither while completion is on.
    void changed();
    void got_focus();
    /// The focus left the control. A key that comes up elsewhere no longer counts as down here.
    void focus_left();

private:
    void step(std::int16_t by);
    void complete();
    void complete_with(std::int32_t row);

    ControlCore& core_;
    ControlObject& object_;
    Selection& selection_;
    DropDown& drop_down_;
};

} // namespace vellora
