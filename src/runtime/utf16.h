// Characters beyond 16 bits stand in UTF-16 as two units, a first and a second half.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vellora {

constexpr bool is_first_half(char16_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}
constexpr bool is_second_half(char16_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// The beginning of a text, as long as `most` units allow, but no half of a character at its end.
constexpr std::u16string_view beginning_of(std::u16string_view text, std::size_t most) {
    const bool cuts_pair =
        most > 0 && most < text.size() && is_first_half(text[most - 1]) && is_second_half(text[most]);
    return text.substr(0, cuts_pair ? most - 1 : most);
}

/// Empty for a number that is no character.
inline std::u16string to_utf16(char32_t character) {
    if (character > 0x10FFFF || (character >= 0xD800 && character <= 0xDFFF)) {
        return {};
    }
    if (character < 0x10000) {
        return {static_cast<char16_t>(character)};
    }
    const char32_t rest = character - 0x10000;
    return {static_cast<char16_t>(0xD800 + (rest >> 10U)), static_cast<char16_t>(0xDC00 + (rest & 0x3FFU))};
}

} // namespace vellora
