// Text between the portable UTF-16 strings and the platform's wide characters: the same units, two type
// names.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace vellora::win32 {

static_assert(sizeof(wchar_t) == sizeof(char16_t));

inline const wchar_t* wide(const char16_t* text) {
    return reinterpret_cast<const wchar_t*>(text);
}
inline const wchar_t* wide(const std::u16string& text) {
    return wide(text.c_str());
}
inline wchar_t* wide(std::u16string& text) {
    return reinterpret_cast<wchar_t*>(text.data());
}

inline std::u16string from_wide(std::wstring_view text) {
    return {reinterpret_cast<const char16_t*>(text.data()), text.size()};
}

/// The text of a window, of any length; empty when the window is gone.
inline std::u16string window_text(HWND window) {
    const int length = GetWindowTextLengthW(window);
    std::u16string text(static_cast<std::size_t>(length > 0 ? length : 0), u'\0');
    const int copied = GetWindowTextW(window, wide(text), length + 1);
    text.resize(static_cast<std::size_t>(copied > 0 ? copied : 0));
    return text;
}

} // namespace vellora::win32
