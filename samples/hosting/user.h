// Plays the user of a control: keys as the keyboard sends them. They are handled with the next turn of the
// message loop.
#pragma once

#include <VelloraCTL.h>
#include <string>
#include <string_view>
#include <windows.h>

namespace vellora::samples {

/// The control's own window.
HWND window_of(_Vellora& control);
/// The child of the control that text is typed into.
HWND text_field_of(_Vellora& control);
/// The list that is open at the moment; null when none is.
HWND open_list();
/// What stands in its text field.
std::wstring text_of(_Vellora& control);

void press(HWND window, WPARAM key);
void type(HWND window, std::wstring_view text);

} // namespace vellora::samples
