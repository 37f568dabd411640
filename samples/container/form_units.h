// The units of a form: it counts in twips, the screen in pixels.
#pragma once

#include "hosting/screen.h"

#include <algorithm>
#include <cstdint>

namespace vellora::samples {

/// Windows have no use for more, whatever a file says.
constexpr std::int32_t most_twips = 300000;
/// What controls are moved and sized by: a twelfth of an inch.
constexpr std::int32_t grid_twips = 120;

inline int pixels_of(std::int32_t twips) {
    return MulDiv(std::clamp(twips, -most_twips, most_twips), resolution(), 1440);
}

inline std::int32_t twips_of(int pixels) {
    return MulDiv(pixels, 1440, resolution());
}

} // namespace vellora::samples
