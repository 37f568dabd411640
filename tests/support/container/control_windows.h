// The windows of a control as a user meets them: text field, drop button, list, headers, floating window.
#pragma once

#include <string>
#include <vector>
#include <windows.h>

namespace vellora::test {

std::wstring class_of(HWND window);

/// The visible text field and drop button inside the control's own window; 0 when there is none.
HWND text_field(HWND control);
HWND drop_button(HWND control);

/// All floating windows that this thread shows for open lists.
std::vector<HWND> floating_windows();
/// The one that is there, 0 when none is.
HWND floating_window();
/// The list in the floating window, or inside the closed control, and its header; 0 when there is none.
HWND list_of(HWND floating_or_control);
HWND header_of(HWND list);

/// Screen pixels; an empty rectangle for a window that is not there.
RECT screen_rect(HWND window);
/// Parts of a list that can be seen, in screen pixels. Rows and columns count from 0.
RECT row_rect(HWND list, int row);
RECT header_rect(HWND list, int column);

} // namespace vellora::test
