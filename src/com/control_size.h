// The control's size in the two units containers use: HIMETRIC (hundredths of a millimetre) and pixels.
#pragma once

#include "com/ole.h"

namespace vellora::com {

SIZE to_pixels(const SIZEL& himetric) noexcept;
SIZEL to_himetric(const SIZE& pixels) noexcept;
/// A width in pixels as twips, and a length in HIMETRIC as twips.
float width_in_twips(LONG pixels) noexcept;
float himetric_in_twips(LONG himetric) noexcept;

inline SIZE size_of(const RECT& rect) noexcept {
    return {rect.right - rect.left, rect.bottom - rect.top};
}
inline bool same_size(const SIZE& a, const SIZE& b) noexcept {
    return a.cx == b.cx && a.cy == b.cy;
}

class ControlSize {
public:
    const SIZE& pixels() const noexcept { return pixels_; }
    const SIZEL& himetric() const noexcept { return himetric_; }

    /// Negative lengths count as 0. The extent follows, unless it means the same pixels already.
    void set_pixels(SIZE pixels) noexcept;
    /// What the container reads back; the pixels stay.
    void set_himetric(SIZEL himetric) noexcept;

private:
    SIZE pixels_ = {};
    SIZEL himetric_ = {};
};

} // namespace vellora::com
