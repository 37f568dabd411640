// The frame of a resizable drop-down: border lines around the list, and a row under it with the grip at its right end.
#pragma once

#include "control/core.h"

namespace vellora {

class ResizeFrame {
public:
    explicit ResizeFrame(ControlCore& core);

    /// Height of the grip's row, in pixels.
    std::int32_t grip_row_pixels() const;
    /// Lays frame, list, lines and grip out so that they fill a floating window of this rectangle.
    void fill(const PixelRect& floating);
    /// Places the frame, twips; a width or height of -1 keeps the present one. List, grip and lines follow.
    void lay_out(float left, float top, float width, float height);

private:
    void place_grip(float width, float height);
    void place_lines(float width, float height);

    ControlCore& core_;
};

} // namespace vellora
