#include "dropdown/resize_grip.h"

#include "dropdown/resize_frame.h"
#include "runtime/checked.h"
#include "runtime/host_error.h"

#include <algorithm>

namespace vellora {

namespace {

constexpr std::int16_t left_button = 1;
// An edge is as wide as a finger is sure of; the corner reaches twice as far along each edge.
constexpr std::int32_t edge = 12;
constexpr std::int32_t corner = 24;

std::int32_t pointer_at(std::int32_t dx, std::int32_t dy) {
    if (dx < edge && dy < edge) {
        return mouse_pointer::size_northwest_southeast;
    }
    if (dy < edge && dx < corner) {
        return mouse_pointer::size_north_south;
    }
    if (dy < corner && dx < edge) {
        return mouse_pointer::size_west_east;
    }
    return mouse_pointer::standard;
}

// As far as the mouse could pull it.
std::int32_t pulled(std::int32_t from, std::int32_t step, std::int32_t screen_end) {
    return step > 0 ? std::max(from, std::min(from + step, screen_end)) : from + step;
}

} // namespace

ResizeGrip::ResizeGrip(ControlCore& core, ResizeFrame& frame) : core_(core), frame_(frame) {}

bool ResizeGrip::AllowResize() const { return core_.state.mbAllowResize; }

void ResizeGrip::put_AllowResize(bool allow) {
    if (core_.state.mlStatic_hWnd != 0) {
        core_.raise(error_number::invalid_property_value,
                    u"Changing AllowResize property not allowed while dropdown window is showing.");
    }
    core_.state.mbAllowResize = allow;
    core_.property_changed(u"AllowResize");
}

void ResizeGrip::lblShangle_MouseDown(std::int16_t button) {
    if (button != left_button) {
        return;
    }
    const auto window = core_.user32.window_rect(core_.state.mlStatic_hWnd);
    mbResizing_ = false;
    if (!window) {
        return;
    }
    mptDragStart_ = core_.user32.cursor();
    const Distance distance = to_edges(*window, mptDragStart_);
    if (distance.x < corner && distance.y < corner) {
        mbResizing_ = true;
        mlDragRight_ = window->right;
        mlDragBottom_ = window->bottom;
    }
}

void ResizeGrip::lblShangle_MouseMove() {
    const auto window = core_.user32.window_rect(core_.state.mlStatic_hWnd);
    if (!window) {
        return;
    }
    const PixelPoint cursor = core_.user32.cursor();
    if (mbResizing_) {
        drag(*window, cursor);
    } else {
        show_pointer(*window, cursor);
    }
}

void ResizeGrip::lblShangle_MouseUp() { mbResizing_ = false; }

void ResizeGrip::pull(std::int32_t across, std::int32_t down) {
    if (const auto window = core_.user32.window_rect(core_.state.mlStatic_hWnd)) {
        const auto screen_end = [&](int origin, int extent) {
            return core_.user32.system_metric(origin) + core_.user32.system_metric(extent);
        };
        resize(*window,
               pulled(window->right, across, screen_end(system_metric::screens_left, system_metric::screens_width)),
               pulled(window->bottom, down, screen_end(system_metric::screens_top, system_metric::screens_height)));
    }
}

ResizeGrip::Distance ResizeGrip::to_edges(const PixelRect& window, PixelPoint cursor) const {
    return {window.right - cursor.x, window.bottom - cursor.y};
}

void ResizeGrip::show_pointer(const PixelRect& window, PixelPoint cursor) {
    const Distance distance = to_edges(window, cursor);
    for (Label* half : core_.parts.lblShangle) {
        half->set_pointer(pointer_at(distance.x, distance.y));
    }
}

void ResizeGrip::drag(const PixelRect& window, PixelPoint cursor) {
    const std::int32_t pointer = core_.parts.lblShangle[0]->pointer();
    const std::int32_t right = mlDragRight_ + cursor.x - mptDragStart_.x;
    const std::int32_t bottom = mlDragBottom_ + cursor.y - mptDragStart_.y;
    resize(window, pointer == mouse_pointer::size_north_south ? window.right : right,
           pointer == mouse_pointer::size_west_east ? window.bottom : bottom);
}

void ResizeGrip::resize(PixelRect window, std::int32_t right, std::int32_t bottom) {
    const std::int32_t smallest = minimum();
    if (right - window.left <= smallest || bottom - window.top <= smallest) {
        return;
    }
    window.right = right;
    window.bottom = bottom;
    core_.user32.move_window(core_.state.mlStatic_hWnd, window, true);
    frame_.fill(window);
}

std::int32_t ResizeGrip::minimum() const {
    const float three_grips = 3 * core_.parts.lblShangle[0]->width();
    return checked_divide(to_long(static_cast<double>(three_grips)), core_.state.miTwipsPerPixelX);
}

} // namespace vellora
