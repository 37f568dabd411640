// Texts of forms as the platform takes them, and back.
#pragma once

#include <string>
#include <string_view>
#include <windows.h>

namespace vellora::samples {

inline std::wstring wide(std::u16string_view text) {
    return {text.begin(), text.end()};
}

inline std::wstring wide(std::string_view utf8) {
    const int size = static_cast<int>(utf8.size());
    std::wstring text(utf8.size(), L'\0'); // a byte makes one unit of UTF-16 at most
    text.resize(static_cast<std::size_t>(
        MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, text.data(), static_cast<int>(text.size()))));
    return text;
}

inline std::u16string utf16(std::wstring_view text) {
    return {text.begin(), text.end()};
}

} // namespace vellora::samples
