// Plays the user of a form: keys as the keyboard sends them, through the form's own message loop.
#pragma once

#include "sample.h"

#include <VelloraCTL.h>
#include <string>
#include <string_view>

namespace vellora::samples {

/// The control's own window.
HWND window_of(_Vellora& control);
/// The child of the control that text is typed into.
HWND text_field_of(_Vellora& control);
/// The list that is open at the moment; null when none is.
HWND open_list();
/// What stands in its text field.
std::wstring text_of(_Vellora& control);

class User {
public:
    /// `form` is any that has a function takes(), as a message loop asks it.
    template <class Form>
    explicit User(Form& form) : takes_([&form](MSG& message) { return form.takes(message); }) {
        wait();
    }

    void press(HWND window, WPARAM key) const;
    /// The keys of a text: small letters, digits and spaces.
    void type(HWND window, std::wstring_view text) const;
    /// Until the program has handled all it has to.
    void wait() const { settle(takes_); }

private:
    Taker takes_;
};

} // namespace vellora::samples
