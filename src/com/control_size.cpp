#include "com/control_size.h"

#include <algorithm>

namespace vellora::com {

namespace {

constexpr int himetric_per_inch = 2540;
constexpr float twips_per_inch = 1440.0F;

struct Resolution {
    int x = 96;
    int y = 96;
};

Resolution screen_resolution() noexcept {
    const HDC screen = GetDC(nullptr);
    if (!screen)
        return {};
    const Resolution resolution{GetDeviceCaps(screen, LOGPIXELSX), GetDeviceCaps(screen, LOGPIXELSY)};
    ReleaseDC(nullptr, screen);
    return resolution;
}

} // namespace

SIZE to_pixels(const SIZEL& himetric) noexcept {
    const Resolution resolution = screen_resolution();
    return {MulDiv(himetric.cx, resolution.x, himetric_per_inch),
            MulDiv(himetric.cy, resolution.y, himetric_per_inch)};
}

SIZEL to_himetric(const SIZE& pixels) noexcept {
    const Resolution resolution = screen_resolution();
    return {MulDiv(pixels.cx, himetric_per_inch, resolution.x),
            MulDiv(pixels.cy, himetric_per_inch, resolution.y)};
}

float width_in_twips(LONG pixels) noexcept {
    return static_cast<float>(pixels) * twips_per_inch / static_cast<float>(screen_resolution().x);
}

float himetric_in_twips(LONG himetric) noexcept {
    return static_cast<float>(himetric) * twips_per_inch / static_cast<float>(himetric_per_inch);
}

void ControlSize::set_pixels(SIZE pixels) noexcept {
    pixels_ = {std::max<LONG>(pixels.cx, 0), std::max<LONG>(pixels.cy, 0)};
    if (!same_size(to_pixels(himetric_), pixels_))
        himetric_ = to_himetric(pixels_);
}

void ControlSize::set_himetric(SIZEL himetric) noexcept {
    himetric_ = {std::max<LONG>(himetric.cx, 0), std::max<LONG>(himetric.cy, 0)};
}

} // namespace vellora::com
