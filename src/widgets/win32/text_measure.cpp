#include "widgets/win32/text_measure.h"

#include "widgets/win32/wide_text.h"

#include <algorithm>

namespace vellora::win32 {

namespace {

// Longer texts are as wide as any window several times over, and some drivers measure no more.
constexpr std::size_t longest_measured = 0x7FFF;

HGDIOBJ usable(HFONT font) {
    return font ? font : GetStockObject(SYSTEM_FONT);
}

} // namespace

TextMeasure::TextMeasure(HFONT font)
    : dc_(CreateCompatibleDC(nullptr)), former_font_(SelectObject(dc_.get(), usable(font))) {}

TextMeasure::~TextMeasure() {
    SelectObject(dc_.get(), former_font_);
}

std::int32_t TextMeasure::width(std::u16string_view text) const {
    SIZE extent{};
    const auto length = static_cast<int>(std::min(text.size(), longest_measured));
    GetTextExtentPoint32W(dc_.get(), wide(text.data()), length, &extent);
    return extent.cx;
}

std::int32_t TextMeasure::character_width(char16_t unit) const {
    return width({&unit, 1});
}

} // namespace vellora::win32
