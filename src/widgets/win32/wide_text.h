// Text between the portable UTF-16 strings and the platform's wide characters: the same units, two type
// names.
#pragma once

#include <windows.h>

#include <algorithm>
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

/// The text of a window, of any length; empty when the window is gone. A short one is read with a single message: a
/// key typed into a field reads its text several times, and each message passes everything that listens to the field.
inline std::u16string window_text(HWND window) {
    constexpr int usual_length = 127;
    std::u16string text(usual_length, u'\0');
    int copied = GetWindowTextW(window, wide(text), usual_length + 1);
    if (copied == usual_length) {
        const int length = GetWindowTextLengthW(window);
        text.resize(static_cast<std::size_t>(std::max(length, usual_length)));
        copied = GetWindowTextW(window, wide(text), static_cast<int>(text.size()) + 1);
    }
    text.resize(static_cast<std::size_t>(std::max(copied, 0)));
    return text;
}

} // namespace vellora::win32
