// Lengths on the screen and in the units that the control and the design of the form measure in.
#pragma once

#include <windows.h>

namespace vellora::samples {

/// Dots per inch, the same in both directions.
inline int resolution() {
    const HDC screen = GetDC(nullptr);
    const int result = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return result;
}

/// A length that was designed for the usual 96 dots per inch.
inline int scaled(LONG length) {
    return MulDiv(length, resolution(), 96);
}

inline RECT scaled(const RECT& place) {
    return {scaled(place.left), scaled(place.top), scaled(place.right), scaled(place.bottom)};
}

/// The control's unit: 1440 to the inch.
inline float twips(int pixels) {
    return static_cast<float>(pixels * (1440 / resolution()));
}

} // namespace vellora::samples
