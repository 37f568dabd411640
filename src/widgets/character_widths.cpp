#include "widgets/character_widths.h"

#include <algorithm>

namespace vellora {

namespace {

// An entry is a width with marks: of a character that needs shaping, and of one that was not asked for yet.
constexpr std::uint16_t shaped_mark = 0x8000;
constexpr std::uint16_t unknown_mark = 0x4000;
constexpr std::uint16_t width_mask = 0x3FFF;

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
    const std::int32_t width = std::clamp<std::int32_t>(measurer.character_width(unit), 0, width_mask);
    return static_cast<std::uint16_t>(width | (needs_shaping(unit) ? shaped_mark : 0));
}

} // namespace

CharacterWidths::CharacterWidths() {
    forget();
}

CharacterWidths::Sum CharacterWidths::sum(std::u16string_view text, const TextMeasurer& measurer) {
    const std::u16string_view shown = text.substr(0, most_units);
    std::uint32_t width = 0;
    std::uint32_t units = 0;
    std::uint32_t marks = 0;
    for (const char16_t unit : shown) {
        const std::uint16_t known = latin_[unit % page_units];
        units |= unit;
        width += known;
        marks |= known;
    }
    const bool plain = units < page_units && (marks & (shaped_mark | unknown_mark)) == 0;
    return plain ? Sum{static_cast<std::int32_t>(width), shown.size(), false} : careful_sum(shown, measurer);
}

CharacterWidths::Sum CharacterWidths::careful_sum(std::u16string_view text, const TextMeasurer& measurer) {
    Sum sum;
    for (; sum.units < text.size() && text[sum.units] != u'\0'; ++sum.units) {
        const std::uint16_t known = entry(text[sum.units], measurer);
        sum.width += known & width_mask;
        sum.shaped = sum.shaped || (known & shaped_mark) != 0;
    }
    return sum;
}

std::uint16_t CharacterWidths::entry(char16_t unit, const TextMeasurer& measurer) {
    std::uint16_t& known = unit < page_units ? latin_[unit] : page_of(unit)[unit % page_units];
    if (known == unknown_mark)
        known = measured(unit, measurer);
    return known;
}

CharacterWidths::Page& CharacterWidths::page_of(char16_t unit) {
    std::unique_ptr<Page>& page = pages_[unit / page_units];
    if (!page) {
        page = std::make_unique<Page>();
        page->fill(unknown_mark);
    }
    return *page;
}

void CharacterWidths::forget() {
    latin_.fill(unknown_mark);
    for (auto& page : pages_)
        page.reset();
}

} // namespace vellora
