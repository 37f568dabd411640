#include "child_window.h"

#include <commctrl.h>

namespace vellora::samples {

namespace {

HWND make_child(HWND form, const wchar_t* window_class, const std::wstring& text, DWORD style,
                DWORD extended = 0, int id = 0) {
    return CreateWindowExW(extended, window_class, text.c_str(), WS_CHILD | WS_VISIBLE | style, 0, 0, 0, 0,
                           form, reinterpret_cast<HMENU>(static_cast<LONG_PTR>(id)),
                           GetModuleHandleW(nullptr), nullptr);
}

} // namespace

HWND make_label(HWND form, const std::wstring& text, DWORD style) {
    return make_child(form, L"Static", text, SS_NOPREFIX | style);
}

HWND make_text_field(HWND form, const std::wstring& text, int id) {
    return make_child(form, L"Edit", text, WS_TABSTOP | ES_AUTOHSCROLL, WS_EX_CLIENTEDGE, id);
}

HWND make_button(HWND form, const std::wstring& text, int id) {
    return make_child(form, L"Button", text, WS_TABSTOP | BS_PUSHBUTTON, 0, id);
}

HWND make_list_box(HWND form, DWORD style) {
    return make_child(form, L"ListBox", {}, WS_TABSTOP | WS_VSCROLL | LBS_NOINTEGRALHEIGHT | style, WS_EX_CLIENTEDGE);
}

HWND make_status_bar(HWND form) {
    return make_child(form, STATUSCLASSNAMEW, {}, SBARS_SIZEGRIP);
}

void move_window(HWND window, const RECT& place) {
    MoveWindow(window, place.left, place.top, place.right - place.left, place.bottom - place.top, TRUE);
}

void set_font(HWND window, HFONT font) {
    SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

} // namespace vellora::samples
