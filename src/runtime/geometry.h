// Lengths: twips in the public interface and for constituents, pixels towards the window system.
#pragma once

#include <cstdint>

namespace vellora {

/// A window's handle as a number, wide enough for the process it lives in. 0 is no window.
using WindowHandle = std::intptr_t;
/// An OLE colour: 0x00BBGGRR, or 0x80000000 + n for system colour n.
using OleColor = std::uint32_t;

/// A constituent's place in its parent's client area, in twips.
struct Bounds {
    float left = 0;
    float top = 0;
    float width = 0;
    float height = 0;
};

/// A point and a rectangle in pixels; right and bottom lie outside.
struct PixelPoint {
    std::int32_t x = 0;
    std::int32_t y = 0;
};
struct PixelRect {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;
};

} // namespace vellora
