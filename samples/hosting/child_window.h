// The plain windows on the form.
#pragma once

#include <string>
#include <windows.h>

namespace vellora::samples {

/// `style` adds what labels have of their own.
HWND make_label(HWND form, const std::wstring& text, DWORD style = 0);
HWND make_text_field(HWND form, const std::wstring& text, int id);
HWND make_button(HWND form, const std::wstring& text, int id);
/// `style` adds what list boxes have of their own.
HWND make_list_box(HWND form, DWORD style = 0);
HWND make_status_bar(HWND form);

void move_window(HWND window, const RECT& place);
void set_font(HWND window, HFONT font);

} // namespace vellora::samples
