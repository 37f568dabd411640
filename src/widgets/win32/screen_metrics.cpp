#include "widgets/win32/screen_metrics.h"

#include "widgets/win32/handles.h"

#include <algorithm>
#include <cmath>

namespace vellora::win32 {

namespace {

constexpr int twips_per_inch = 1440;
constexpr float largest_place = 32767;

int twips_per_pixel(int capability) {
    const WindowDc screen(nullptr);
    const int dots_per_inch = GetDeviceCaps(screen.get(), capability);
    return dots_per_inch > 0 ? std::max(1, twips_per_inch / dots_per_inch) : 15;
}

int pixels(float twips, int factor) {
    const float places = twips / static_cast<float>(factor);
    if (std::isnan(places)) {
        return 0;
    }
    return static_cast<int>(std::lround(std::clamp(places, -largest_place, largest_place)));
}

} // namespace

// A process keeps the resolution it started with, so reading it once is enough.
int twips_per_pixel_x() {
    static const int factor = twips_per_pixel(LOGPIXELSX);
    return factor;
}

int twips_per_pixel_y() {
    static const int factor = twips_per_pixel(LOGPIXELSY);
    return factor;
}

int pixels_x(float twips) {
    return pixels(twips, twips_per_pixel_x());
}
int pixels_y(float twips) {
    return pixels(twips, twips_per_pixel_y());
}
float twips_x(int pixels) {
    return static_cast<float>(pixels) * static_cast<float>(twips_per_pixel_x());
}
float twips_y(int pixels) {
    return static_cast<float>(pixels) * static_cast<float>(twips_per_pixel_y());
}

} // namespace vellora::win32
