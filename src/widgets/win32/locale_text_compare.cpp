#include "widgets/win32/locale_text_compare.h"

#include "widgets/win32/wide_text.h"

#include <algorithm>
#include <array>
#include <limits>
#include <new>
#include <vector>

namespace vellora::win32 {

namespace {

constexpr DWORD sort_key_flags = LCMAP_SORTKEY | NORM_IGNORECASE;

int length_of(std::u16string_view text) {
    if (text.size() > static_cast<std::size_t>(std::numeric_limits<int>::max()))
        throw std::bad_alloc();
    return static_cast<int>(text.size());
}

/// The key's bytes go in two per unit, the first one high, so that units compare as the bytes do.
std::u16string packed(const std::uint8_t* bytes, std::size_t count) {
    std::u16string units((count + 1) / 2, u'\0');
    for (std::size_t i = 0; i < count; ++i)
        units[i / 2] = static_cast<char16_t>(units[i / 2] | (i % 2 == 0 ? bytes[i] << 8 : bytes[i]));
    return units;
}

int map_key(std::u16string_view text, std::uint8_t* key, int capacity) {
    return LCMapStringEx(LOCALE_NAME_USER_DEFAULT, sort_key_flags, wide(text.data()), length_of(text),
                         reinterpret_cast<wchar_t*>(key), capacity, nullptr, nullptr, 0);
}

bool is_ascii(std::u16string_view text) {
    return std::all_of(text.begin(), text.end(), [](char16_t unit) { return unit < 0x80; });
}

char16_t ascii_lower(char16_t unit) {
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + (u'a' - u'A')) : unit;
}

} // namespace

std::u16string LocaleTextCompare::sort_key(std::u16string_view text) const {
    if (text.empty())
        return {};
    std::array<std::uint8_t, 1024> usual;
    if (const int size = map_key(text, usual.data(), static_cast<int>(usual.size())); size > 0)
        return packed(usual.data(), static_cast<std::size_t>(size));
    std::vector<std::uint8_t> large(static_cast<std::size_t>(std::max(map_key(text, nullptr, 0), 0)));
    const int size = map_key(text, large.data(), static_cast<int>(large.size()));
    return packed(large.data(), static_cast<std::size_t>(std::max(size, 0)));
}

std::u16string LocaleTextCompare::fold(std::u16string_view text) const {
    std::u16string folded(text);
    if (is_ascii(text))
        std::transform(text.begin(), text.end(), folded.begin(), ascii_lower);
    else
        LCMapStringEx(LOCALE_NAME_USER_DEFAULT, LCMAP_LOWERCASE, wide(text.data()), length_of(text),
                      wide(folded), length_of(folded), nullptr, nullptr, 0);
    return folded;
}

} // namespace vellora::win32
