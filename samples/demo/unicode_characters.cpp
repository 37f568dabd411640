#include "unicode_characters.h"

#include "record_file.h"
#include "unicode_categories.h"

#include <charconv>
#include <cstdint>

namespace vellora::samples {

namespace {

// The fields of UnicodeData.txt that are read here.
constexpr std::size_t code_field = 0, name_field = 1, category_field = 2, old_name_field = 10;

constexpr RecordSource characters_source{L"VELLORA_UNICODE", L"UnicodeData.txt", L"unicode-data", ';', 11};

bool parse_code_point(std::string_view digits, std::uint32_t& code_point) {
    const char* end = digits.data() + digits.size();
    const auto [stopped, error] = std::from_chars(digits.data(), end, code_point, 16);
    return error == std::errc() && stopped == end && code_point <= 0x10FFFF;
}

std::wstring utf16(std::uint32_t code_point) {
    if (code_point < 0x10000)
        return {static_cast<wchar_t>(code_point)};
    const std::uint32_t offset = code_point - 0x10000;
    return {static_cast<wchar_t>(0xD800 + (offset >> 10)), static_cast<wchar_t>(0xDC00 + (offset & 0x3FF))};
}

/// Characters without a look of their own stay empty; marks sit on a dotted circle, since they need something
/// to sit on.
std::wstring visible_character(std::uint32_t code_point, std::string_view category) {
    if (category.starts_with('C') || category == "Zl" || category == "Zp")
        return {};
    return category.starts_with('M') ? L'◌' + utf16(code_point) : utf16(code_point);
}

/// All control characters are named "<control>"; their names of old tell more.
std::string_view best_name(const RecordFile::Fields& fields) {
    const bool nameless = fields[name_field].starts_with("<control") && !fields[old_name_field].empty();
    return fields[nameless ? old_name_field : name_field];
}

} // namespace

TextRows read_unicode_characters() {
    TextRows rows;
    RecordFile(characters_source).for_each([&](const RecordFile::Fields& fields) {
        const std::string_view digits = fields[code_field];
        std::uint32_t code_point = 0;
        std::wstring name;
        if (!parse_code_point(digits, code_point) || !decode(best_name(fields), name))
            return false;
        rows.push_back({visible_character(code_point, fields[category_field]),
                        L"U+" + std::wstring(digits.begin(), digits.end()), std::move(name),
                        category_name(fields[category_field])});
        return true;
    });
    return rows;
}

} // namespace vellora::samples
