// Lengths on the screen and in the units that the control and the design of the form measure in.
#pragma once

#include <windows.h>

namespace vellora::demo {

/// Dots per inch, the same in both directions.
inline int resolution() {
    const HDC screen = GetDC(nullptr);
    const int result = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return result;
}

/// A length that was designed for the usual 96 dots per inch.
inline int scaled(int length) {
    return MulDiv(length, resolution(), 96);
}

/// The control's unit: 1440 to the inch.
inline float twips(int pixels) {
    return static_cast<float>(pixels * (1440 / resolution()));
}

} // namespace vellora::demo
