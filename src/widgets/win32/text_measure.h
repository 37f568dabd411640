// Measures texts in a font of the window system.
#pragma once

#include "widgets/text_measurer.h"
#include "widgets/win32/handles.h"

namespace vellora::win32 {

class TextMeasure final : public TextMeasurer {
public:
    /// The font stays the caller's and must outlive this; null stands for the system's default.
    explicit TextMeasure(HFONT font);
    ~TextMeasure();
    TextMeasure(const TextMeasure&) = delete;
    TextMeasure& operator=(const TextMeasure&) = delete;

    std::int32_t width(std::u16string_view text) const override;
    std::int32_t character_width(char16_t unit) const override;

private:
    UniqueMemoryDc dc_;
    HGDIOBJ former_font_;
};

} // namespace vellora::win32
