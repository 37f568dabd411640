#include "design_hand.h"

#include "form_units.h"

#include <cstdlib>
#include <utility>

namespace vellora::samples {

namespace {

/// To the nearest point of the grid.
LONG snapped(LONG pixels) {
    const std::int32_t twips = twips_of(static_cast<int>(pixels));
    const std::int32_t half = twips < 0 ? -grid_twips / 2 : grid_twips / 2;
    return pixels_of((twips + half) / grid_twips * grid_twips);
}

} // namespace

RECT pulled(const RECT& place, unsigned edges, POINT by) {
    RECT result = place;
    if (edges == grip_whole) {
        OffsetRect(&result, snapped(place.left + by.x) - place.left, snapped(place.top + by.y) - place.top);
        return result;
    }
    const LONG least = pixels_of(grid_twips);
    if (edges & grip_left)
        result.left = std::min(snapped(place.left + by.x), place.right - least);
    if (edges & grip_right)
        result.right = std::max(snapped(place.right + by.x), place.left + least);
    if (edges & grip_top)
        result.top = std::min(snapped(place.top + by.y), place.bottom - least);
    if (edges & grip_bottom)
        result.bottom = std::max(snapped(place.bottom + by.y), place.top + least);
    return result;
}

RECT nudged(const RECT& place, WPARAM key, bool sizes, bool fine) {
    const LONG step = fine ? 1 : pixels_of(grid_twips);
    const LONG x = key == VK_LEFT ? -step : key == VK_RIGHT ? step : 0;
    const LONG y = key == VK_UP ? -step : key == VK_DOWN ? step : 0;
    RECT result = place;
    if (!sizes) {
        OffsetRect(&result, x, y);
        return result;
    }
    result.right = std::max(result.right + x, result.left + 1);
    result.bottom = std::max(result.bottom + y, result.top + 1);
    return result;
}

void DesignDrag::begin(POINT mouse, const RECT& place, unsigned edges, std::function<void(const RECT&)> move) {
    start_ = mouse;
    before_ = place;
    edges_ = edges;
    moved_ = false;
    move_ = std::move(move);
}

void DesignDrag::follow(POINT mouse) {
    const POINT by{mouse.x - start_.x, mouse.y - start_.y};
    moved_ = moved_ || std::abs(by.x) > GetSystemMetrics(SM_CXDRAG) || std::abs(by.y) > GetSystemMetrics(SM_CYDRAG);
    if (moved_ && move_)
        move_(pulled(before_, edges_, by));
}

void DesignDrag::cancel() {
    if (const auto move = std::exchange(move_, nullptr))
        move(before_);
}

} // namespace vellora::samples
