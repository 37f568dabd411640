#include "widgets/win32/text_measure.h"

#include "widgets/win32/wide_text.h"

#include <algorithm>
#include <array>

namespace vellora::win32 {

namespace {

// Longer texts are as wide as any window several times over, and some drivers measure no more.
constexpr std::size_t longest_measured = 0x7FFF;

HGDIOBJ usable(HFONT font) {
    return font ? font : GetStockObject(SYSTEM_FONT);
}

constexpr std::int8_t unknown_surplus = INT8_MIN;
constexpr std::size_t number_of_units = 0x10000;

// Pixels of a line. Hints move no more than a part of a pixel, which tells in small letters only.
constexpr LONG tallest_sampled = 64;

// Several of a letter, so that a pixel for each stands out from the one by which a single letter may hang over.
constexpr std::array<std::u16string_view, 4> samples{u"mmmm", u"wwww", u"nnnn", u"0000"};

int cell_width(HDC dc, char16_t unit, UINT format) {
    constexpr MAT2 identity{{0, 1}, {}, {}, {0, 1}};
    GLYPHMETRICS metrics{};
    const bool known = GetGlyphOutlineW(dc, unit, format, &metrics, 0, nullptr, &identity) != GDI_ERROR;
    return known ? metrics.gmCellIncX : 0;
}

/// White paper in the colours of a screen, where letters are smoothed as there.
class Paper {
public:
    Paper(HDC dc, SIZE size) : dc_(dc), size_(size) {
        BITMAPINFO info{};
        info.bmiHeader = {sizeof info.bmiHeader, size.cx, -size.cy, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        bitmap_.reset(CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits_, nullptr, 0));
        former_ = SelectObject(dc, bitmap_.get());
        PatBlt(dc, 0, 0, size.cx, size.cy, WHITENESS);
    }
    ~Paper() { SelectObject(dc_, former_); }
    Paper(const Paper&) = delete;
    Paper& operator=(const Paper&) = delete;

    bool is_marked_right_of(LONG column) const {
        GdiFlush();
        const auto* const pixels = static_cast<const DWORD*>(bits_);
        const LONG end = bits_ ? size_.cx * size_.cy : 0;
        for (LONG pixel = 0; pixel < end; ++pixel) {
            if (pixel % size_.cx > column && (pixels[pixel] & 0xFFFFFF) != 0xFFFFFF)
                return true;
        }
        return false;
    }

private:
    HDC dc_;
    SIZE size_;
    void* bits_ = nullptr;
    UniqueBitmap bitmap_;
    HGDIOBJ former_ = nullptr;
};

bool draws_wider(HDC dc, std::u16string_view text) {
    SIZE size{};
    const auto length = static_cast<int>(text.size());
    GetTextExtentPoint32W(dc, wide(text.data()), length, &size);
    if (size.cy > tallest_sampled)
        return false;
    const Paper paper(dc, {2 * size.cx, size.cy});
    TextOutW(dc, 0, 0, wide(text.data()), length);
    return paper.is_marked_right_of(size.cx);
}

} // namespace

bool is_drawn_wider(HFONT font) {
    const UniqueMemoryDc dc(CreateCompatibleDC(nullptr));
    const SavedDc saved(dc.get());
    SelectObject(dc.get(), usable(font));
    return std::any_of(samples.begin(), samples.end(), [&](auto text) { return draws_wider(dc.get(), text); });
}

TextMeasure::TextMeasure(HFONT font, bool drawn_wider)
    : dc_(CreateCompatibleDC(nullptr)), former_font_(SelectObject(dc_.get(), usable(font))) {
    if (drawn_wider)
        surplus_.assign(number_of_units, unknown_surplus);
}

TextMeasure::~TextMeasure() {
    SelectObject(dc_.get(), former_font_);
}

std::int32_t TextMeasure::width(std::u16string_view text) const {
    std::int32_t more = 0;
    if (!surplus_.empty()) {
        for (const char16_t unit : text.substr(0, longest_measured))
            more += surplus(unit);
    }
    return extent(text) + std::max(more, 0);
}

std::int32_t TextMeasure::character_width(char16_t unit) const {
    return width({&unit, 1});
}

std::int32_t TextMeasure::extent(std::u16string_view text) const {
    SIZE extent{};
    const auto length = static_cast<int>(std::min(text.size(), longest_measured));
    GetTextExtentPoint32W(dc_.get(), wide(text.data()), length, &extent);
    return extent.cx;
}

std::int32_t TextMeasure::surplus(char16_t unit) const {
    std::int8_t& known = surplus_[unit];
    if (known == unknown_surplus) {
        const int more = cell_width(dc_.get(), unit, GGO_BITMAP) - cell_width(dc_.get(), unit, GGO_METRICS);
        known = static_cast<std::int8_t>(std::clamp(more, -INT8_MAX, INT8_MAX));
    }
    return known;
}

} // namespace vellora::win32
