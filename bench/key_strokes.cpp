#include "key_strokes.h"

namespace vellora::bench {

namespace {

void pump() {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

} // namespace

NativeEdit::NativeEdit(HWND form)
    : window_(CreateWindowExW(WS_EX_CLIENTEDGE, L"Edit", L"", WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, 20, 400, 200, 24,
                              form, nullptr, nullptr, nullptr)) {
}

void be_about_to_type(HWND field, const std::wstring& text) {
    SetFocus(field);
    SetWindowTextW(field, text.c_str());
    SendMessageW(field, EM_SETSEL, text.size(), static_cast<LPARAM>(text.size()));
    pump();
}

void type_and_complete(HWND field, wchar_t character, const std::wstring& whole) {
    SendMessageW(field, WM_KEYDOWN, VK_PACKET, 1);
    SendMessageW(field, WM_CHAR, character, 1);
    const LRESULT caret = HIWORD(SendMessageW(field, EM_GETSEL, 0, 0));
    SetWindowTextW(field, whole.c_str());
    SendMessageW(field, EM_SETSEL, static_cast<WPARAM>(caret), caret);
    SendMessageW(field, EM_SCROLLCARET, 0, 0);
    SendMessageW(field, EM_SETSEL, static_cast<WPARAM>(caret), static_cast<LPARAM>(whole.size()));
    pump();
    SendMessageW(field, WM_KEYUP, VK_PACKET, static_cast<LPARAM>(0xC0000001U));
}

void type(HWND field, wchar_t character) {
    SendMessageW(field, WM_KEYDOWN, VK_PACKET, 1);
    PostMessageW(field, WM_CHAR, character, 1);
    pump();
    SendMessageW(field, WM_KEYUP, VK_PACKET, static_cast<LPARAM>(0xC0000001U));
}

} // namespace vellora::bench
