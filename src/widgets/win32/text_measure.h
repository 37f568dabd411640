// Measures texts in a font of the window system, as they are drawn. Some platforms measure a font by other hints than
// they draw it with; its letters then stand further apart than the text functions say.
#pragma once

#include "widgets/text_measurer.h"
#include "widgets/win32/handles.h"

#include <vector>

namespace vellora::win32 {

/// True for a font whose letters stand further apart on the screen than the text functions say. Draws a few letters:
/// about 0.1 ms, so whoever measures often keeps the answer.
bool is_drawn_wider(HFONT font);

class TextMeasure final : public TextMeasurer {
public:
    /// The font stays the caller's and must outlive this; null stands for the system's default.
    explicit TextMeasure(HFONT font) : TextMeasure(font, is_drawn_wider(font)) {}
    /// With what is_drawn_wider has said of it.
    TextMeasure(HFONT font, bool drawn_wider);
    ~TextMeasure();
    TextMeasure(const TextMeasure&) = delete;
    TextMeasure& operator=(const TextMeasure&) = delete;

    std::int32_t width(std::u16string_view text) const override;
    std::int32_t character_width(char16_t unit) const override;
    /// What the text functions say, by which they also cut a text.
    std::int32_t extent(std::u16string_view text) const;

private:
    std::int32_t surplus(char16_t unit) const;

    UniqueMemoryDc dc_;
    HGDIOBJ former_font_;
    mutable std::vector<std::int8_t> surplus_; // of each unit met; empty for a font that is drawn as measured
};

} // namespace vellora::win32
