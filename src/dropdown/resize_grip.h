// Pulling the open drop-down to another size by its grip, and what the pointer looks like over it.
#pragma once

#include "control/core.h"

namespace vellora {

class ResizeFrame;

/// Distances are screen pixels from the floating window's right and bottom edge to the cursor.
class ResizeGrip {
public:
    ResizeGrip(ControlCore& core, ResizeFrame& frame);

    bool AllowResize() const;
    /// Takes effect at the next opening. Error 380 while the list is open.
    void put_AllowResize(bool allow);

    void lblShangle_MouseDown(std::int16_t button);
    void lblShangle_MouseMove();
    void lblShangle_MouseUp();

    /// Pulls the corner of the open list without a mouse, by pixels.
    void pull(std::int32_t across, std::int32_t down);

private:
    struct Distance {
        std::int32_t x;
        std::int32_t y;
    };
    Distance to_edges(const PixelRect& window, PixelPoint cursor) const;
    void show_pointer(const PixelRect& window, PixelPoint cursor);
    void drag(const PixelRect& window, PixelPoint cursor);
    void resize(PixelRect window, std::int32_t right, std::int32_t bottom);
    std::int32_t minimum() const;

    ControlCore& core_;
    ResizeFrame& frame_;
    bool mbResizing_ = false;
    PixelPoint mptDragStart_;
    std::int32_t mlDragRight_ = 0;
    std::int32_t mlDragBottom_ = 0;
};

} // namespace vellora
