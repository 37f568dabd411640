#include "dropdown/resize_frame.h"

#include "runtime/checked.h"

namespace vellora {

namespace {

constexpr float keep = -1;

} // namespace

ResizeFrame::ResizeFrame(ControlCore& core) : core_(core) {}

std::int32_t ResizeFrame::grip_row_pixels() const {
    return checked_divide(to_long(static_cast<double>(core_.parts.lblShangle[0]->height())),
                          core_.state.miTwipsPerPixelY);
}

void ResizeFrame::fill(const PixelRect& floating) {
    const std::int32_t width =
        checked_multiply(floating.right - floating.left, std::int32_t{core_.state.miTwipsPerPixelX});
    const std::int32_t height =
        checked_multiply(floating.bottom - floating.top, std::int32_t{core_.state.miTwipsPerPixelY});
    lay_out(0, 0, static_cast<float>(width), static_cast<float>(height));
}

void ResizeFrame::lay_out(float left, float top, float width, float height) {
    Frame& frame = core_.parts.Frame1;
    const Bounds before = frame.bounds();
    const float frame_width = width == keep ? before.width : width;
    const float frame_height = height == keep ? before.height : height;
    const auto grip_row = static_cast<float>(grip_row_pixels() * core_.state.miTwipsPerPixelY);
    frame.move({left, top, frame_width, frame_height});
    frame.set_visible(true);
    core_.parts.ListView1.move({left, top, frame_width, frame_height - grip_row});
    place_grip(frame_width, frame_height);
    place_lines(frame_width, frame_height);
}

void ResizeFrame::place_grip(float width, float height) {
    for (Label* half : core_.parts.lblShangle) {
        half->move(width - half->width(), height - half->height());
    }
}

void ResizeFrame::place_lines(float width, float height) {
    const auto pixel_x = static_cast<float>(core_.state.miTwipsPerPixelX);
    const auto pixel_y = static_cast<float>(core_.state.miTwipsPerPixelY);
    const float right = width - pixel_x;
    const float bottom = height - pixel_y;
    core_.parts.linLeft.set_ends({0, 0, 0, height});
    core_.parts.linRight.set_ends({right, 0, right, height});
    core_.parts.linBottom.set_ends({0, bottom, width, bottom});
}

} // namespace vellora
