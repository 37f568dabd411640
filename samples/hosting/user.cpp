#include "user.h"

#include "bstr.h"
#include "failure.h"

#include <commctrl.h>

namespace vellora::samples {

namespace {

bool is_a(HWND window, const wchar_t* class_name) {
    wchar_t name[32] = L"";
    GetClassNameW(window, name, ARRAYSIZE(name));
    return lstrcmpiW(name, class_name) == 0;
}

BOOL CALLBACK find_edit(HWND window, LPARAM found) {
    auto* edit = reinterpret_cast<HWND*>(found);
    if (is_a(window, WC_EDITW))
        *edit = window;
    return *edit == nullptr;
}

BOOL CALLBACK find_list(HWND window, LPARAM found) {
    auto* list = reinterpret_cast<HWND*>(found);
    if (IsWindowVisible(window))
        *list = FindWindowExW(window, nullptr, WC_LISTVIEWW, nullptr);
    return *list == nullptr;
}

} // namespace

HWND window_of(_Vellora& control) {
    long handle = 0;
    check(control.get_hWnd(&handle), L"Asking for the control's window");
    return reinterpret_cast<HWND>(static_cast<LONG_PTR>(handle));
}

HWND text_field_of(_Vellora& control) {
    HWND edit = nullptr;
    EnumChildWindows(window_of(control), find_edit, reinterpret_cast<LPARAM>(&edit));
    return edit;
}

HWND open_list() {
    HWND list = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), find_list, reinterpret_cast<LPARAM>(&list));
    return list;
}

std::wstring text_of(_Vellora& control) {
    Bstr text;
    check(control.get_Text(text.out()), L"Reading the control's text");
    return text.text();
}

void User::press(HWND window, WPARAM key) const {
    constexpr LPARAM once = 1, released = static_cast<LPARAM>(0xC0000001);
    PostMessageW(window, WM_KEYDOWN, key, once);
    wait();
    PostMessageW(window, WM_KEYUP, key, released);
    wait();
}

void User::type(HWND window, std::wstring_view text) const {
    for (const wchar_t character : text)
        press(window, LOBYTE(VkKeyScanW(character)));
}

} // namespace vellora::samples
