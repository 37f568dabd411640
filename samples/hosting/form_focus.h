// A form has no use for the keyboard focus itself: the child that had it last gets it back.
#pragma once

#include <windows.h>

namespace vellora::samples {

class FormFocus {
public:
    explicit FormFocus(HWND form) : form_(form) {}

    /// WM_ACTIVATE
    void form_activated(bool active);
    /// WM_SETFOCUS
    void give_back() const;

private:
    HWND form_;
    HWND last_ = nullptr;
};

} // namespace vellora::samples
