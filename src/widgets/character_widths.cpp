#include "widgets/character_widths.h"

#include <algorithm>

namespace vellora {

namespace {

// An entry is a width with a mark for characters that need shaping.
constexpr std::uint16_t shaped_mark = 0x8000;
constexpr std::uint16_t width_mask = 0x7FFF;
constexpr std::uint16_t not_asked = 0xFFFF;
constexpr std::int32_t widest_character = 0x7FFE;

struct Units {
    char16_t first;
    char16_t last;
};

// Scripts whose characters stand side by side, each with its own width; of all others nothing is presumed.
// Source: the block list of the Unicode character database.
constexpr std::array side_by_side{
    Units{0x0020, 0x007E}, // Basic Latin
    Units{0x00A0, 0x02FF}, // Latin, IPA, modifier letters
    Units{0x0370, 0x058F}, // Greek, Cyrillic, Armenian
    Units{0x10A0, 0x10FF}, // Georgian
    Units{0x1E00, 0x1FFF}, // Latin and Greek with marks
    Units{0x2010, 0x2027}, // punctuation
    Units{0x2030, 0x205F}, // punctuation
    Units{0x2070, 0x20CF}, // superscripts, currency
    Units{0x2100, 0x2FFF}, // symbols, radicals
    Units{0x3000, 0xA4CF}, // East Asian
    Units{0xAC00, 0xD7A3}, // Hangul syllables
    Units{0xF900, 0xFAFF}, // East Asian compatibility
    Units{0xFF00, 0xFFEF}, // half and full width forms
};

bool needs_shaping(char16_t unit) {
    return std::none_of(side_by_side.begin(), side_by_side.end(),
                        [unit](const Units& range) { return unit >= range.first && unit <= range.last; });
}

std::uint16_t measured(char16_t unit, const TextMeasurer& measurer) {
    const std::int32_t width = std::clamp(measurer.character_width(unit), 0, widest_character);
    return static_cast<std::uint16_t>(width | (needs_shaping(unit) ? shaped_mark : 0));
}

} // namespace

CharacterWidths::CharacterWidths() {
    forget();
}

CharacterWidths::Sum CharacterWidths::sum(std::u16string_view text, const TextMeasurer& measurer) {
    std::int32_t width = 0;
    std::uint16_t marks = 0;
    const char16_t* const begin = text.data();
    const char16_t* const end = begin + std::min(text.size(), most_units);
    const char16_t* unit = begin;
    for (; unit != end; ++unit) {
        std::uint16_t known = *unit < latin_.size() ? latin_[*unit] : not_asked;
        if (known == not_asked) [[unlikely]] {
            if (*unit == u'\0')
                break;
            known = look_up(*unit, measurer);
        }
        width += known & width_mask;
        marks |= known;
    }
    return {width, static_cast<std::size_t>(unit - begin), (marks & shaped_mark) != 0};
}

std::uint16_t CharacterWidths::look_up(char16_t unit, const TextMeasurer& measurer) {
    std::uint16_t& known = unit < latin_.size() ? latin_[unit] : page_of(unit)[unit % page_units];
    if (known == not_asked)
        known = measured(unit, measurer);
    return known;
}

CharacterWidths::Page& CharacterWidths::page_of(char16_t unit) {
    std::unique_ptr<Page>& page = pages_[unit / page_units];
    if (!page) {
        page = std::make_unique<Page>();
        page->fill(not_asked);
    }
    return *page;
}

void CharacterWidths::forget() {
    latin_.fill(not_asked);
    for (auto& page : pages_)
        page.reset();
}

} // namespace vellora
