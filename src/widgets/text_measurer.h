// How wide a text is drawn in the font of a list.
#pragma once

#include <cstdint>
#include <string_view>

namespace vellora {

/// Widths are pixels. Both answer for the same font.
class TextMeasurer {
public:
    /// The extent of the whole text, as the list draws it in one line.
    virtual std::int32_t width(std::u16string_view text) const = 0;
    /// How far one code unit alone moves the pen; 0 for a unit that is not drawn. Asked once per unit and
    /// font.
    virtual std::int32_t character_width(char16_t unit) const = 0;

protected:
    ~TextMeasurer() = default;
};

} // namespace vellora
