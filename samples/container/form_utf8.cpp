#include "form_utf8.h"

#include <cstdint>

namespace vellora::samples {

namespace {

constexpr bool is_high(char32_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}
constexpr bool is_low(char32_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

/// The character at `at`, which moves behind it. Half a pair is a character by itself.
char32_t take_character(std::u16string_view text, std::size_t& at) {
    const char32_t unit = text[at++];
    if (!is_high(unit) || at == text.size() || !is_low(text[at]))
        return unit;
    return 0x10000 + ((unit - 0xD800) << 10) + (char32_t{text[at++]} - 0xDC00);
}

void append(std::string& bytes, char32_t character) {
    const auto trail = [&](int shift) { bytes += static_cast<char>(0x80 | ((character >> shift) & 0x3F)); };
    if (character < 0x80) {
        bytes += static_cast<char>(character);
    } else if (character < 0x800) {
        bytes += static_cast<char>(0xC0 | (character >> 6));
        trail(0);
    } else if (character < 0x10000) {
        bytes += static_cast<char>(0xE0 | (character >> 12));
        trail(6), trail(0);
    } else {
        bytes += static_cast<char>(0xF0 | (character >> 18));
        trail(12), trail(6), trail(0);
    }
}

void append(std::u16string& text, char32_t character) {
    if (character < 0x10000) {
        text += static_cast<char16_t>(character);
        return;
    }
    text += static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10));
    text += static_cast<char16_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
}

/// What the first byte of a character says about it.
struct Lead {
    int trails;
    char32_t bits, least;
};

std::optional<Lead> lead_of(std::uint8_t byte) {
    if (byte < 0x80)
        return Lead{0, byte, 0};
    if (byte >= 0xC2 && byte < 0xE0)
        return Lead{1, static_cast<char32_t>(byte & 0x1F), 0x80};
    if (byte >= 0xE0 && byte < 0xF0)
        return Lead{2, static_cast<char32_t>(byte & 0x0F), 0x800};
    if (byte >= 0xF0 && byte < 0xF5)
        return Lead{3, static_cast<char32_t>(byte & 0x07), 0x10000};
    return std::nullopt;
}

std::optional<char32_t> take_character(std::string_view& bytes) {
    const std::optional<Lead> lead = lead_of(static_cast<std::uint8_t>(bytes.front()));
    if (!lead || bytes.size() <= static_cast<std::size_t>(lead->trails))
        return std::nullopt;
    char32_t character = lead->bits;
    for (int trail = 1; trail <= lead->trails; ++trail) {
        const auto byte = static_cast<std::uint8_t>(bytes[static_cast<std::size_t>(trail)]);
        if ((byte & 0xC0) != 0x80)
            return std::nullopt;
        character = character << 6 | (byte & 0x3F);
    }
    if (character < lead->least || character > 0x10FFFF)
        return std::nullopt;
    bytes.remove_prefix(static_cast<std::size_t>(lead->trails) + 1);
    return character;
}

} // namespace

std::string encode_utf8(std::u16string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t at = 0; at < text.size();)
        append(bytes, take_character(text, at));
    return bytes;
}

std::optional<std::u16string> decode_utf8(std::string_view bytes) {
    std::u16string text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        const std::optional<char32_t> character = take_character(bytes);
        if (!character)
            return std::nullopt;
        append(text, *character);
    }
    return text;
}

bool has_whole_characters(std::u16string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        const char32_t character = take_character(text, at);
        if (is_high(character) || is_low(character))
            return false;
    }
    return true;
}

} // namespace vellora::samples
