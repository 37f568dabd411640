#include "dropdown/placement.h"

#include "runtime/checked.h"
#include "runtime/host_error.h"

namespace vellora {

namespace {

// Two pixels of border above and below the rows.
constexpr std::int32_t border_pixels = 4;

} // namespace

Placement::Placement(ControlCore& core) : core_(core) {}

float Placement::DropDownHeight() const { return core_.state.msngDropDownHeight; }

void Placement::put_DropDownHeight(float rows) {
    if (!(rows >= 1)) {
        throw HostError(error_number::invalid_property_value);
    }
    core_.state.msngDropDownHeight = rows;
    core_.property_changed(u"DropDownHeight");
}

float Placement::DropDownWidthOffset() const { return core_.state.msngDropDownWidthOffset; }

void Placement::put_DropDownWidthOffset(float offset) {
    core_.state.msngDropDownWidthOffset = offset;
    core_.property_changed(u"DropDownWidthOffset");
}

std::int32_t Placement::DropDownAlignment() const { return core_.state.mlDropDownAlignment; }

void Placement::put_DropDownAlignment(std::int32_t alignment) {
    core_.state.mlDropDownAlignment = alignment;
    core_.property_changed(u"DropDownAlignment");
}

OleColor Placement::DropDownBackColor() const { return core_.parts.ListView1.back_color(); }

void Placement::put_DropDownBackColor(OleColor color) {
    core_.parts.ListView1.set_back_color(color);
    core_.property_changed(u"DropDownBackColor");
}

OleColor Placement::DropDownForeColor() const { return core_.parts.ListView1.fore_color(); }

void Placement::put_DropDownForeColor(OleColor color) {
    core_.parts.ListView1.set_fore_color(color);
    core_.property_changed(u"DropDownForeColor");
}

Bounds Placement::place(const PixelRect& control) const {
    const ControlState& state = core_.state;
    Bounds bounds;
    bounds.left = static_cast<float>(checked_multiply(control.left, std::int32_t{state.miTwipsPerPixelX}));
    bounds.top = static_cast<float>(checked_multiply(control.top, std::int32_t{state.miTwipsPerPixelY})) +
                 core_.surface.height();
    bounds.width = core_.surface.width() + state.msngDropDownWidthOffset -
                   static_cast<float>(state.miTwipsPerPixelX);
    if (state.mlDropDownAlignment == vlDDRight) {
        bounds.left -= state.msngDropDownWidthOffset;
    } else if (state.mlDropDownAlignment == vlDDCenter) {
        bounds.left -= state.msngDropDownWidthOffset / 2;
    }
    return bounds;
}

void Placement::subSizeListView(Bounds& bounds) {
    ListView& list = core_.parts.ListView1;
    bounds.height = height_of_rows() + height_of_headers();
    list.move(bounds);
    bounds = list.bounds();
    if ((ListScrollBars() & 1) != 0) {
        bounds.height += static_cast<float>(
            checked_multiply(std::int32_t{core_.user32.system_metric(system_metric::scroll_bar_height)},
                             std::int32_t{core_.state.miTwipsPerPixelY}));
    }
    list.move(bounds);
}

float Placement::row_height() const {
    if (core_.parts.ListView1.rows().count() > 0) {
        return core_.parts.ListView1.row_height();
    }
    return core_.surface.text_height(u"Yy") + static_cast<float>(core_.state.miTwipsPerPixelY);
}

float Placement::height_of_rows() const {
    const std::int32_t count = core_.parts.ListView1.rows().count();
    std::int32_t rows = count > 0 ? count : 1;
    if (static_cast<float>(rows) > core_.state.msngDropDownHeight) {
        rows = to_integer(static_cast<double>(core_.state.msngDropDownHeight));
    }
    const auto border = static_cast<float>(
        checked_multiply(border_pixels, std::int32_t{core_.state.miTwipsPerPixelY}));
    return static_cast<float>(rows) * row_height() + border;
}

float Placement::height_of_headers() const {
    if (core_.state.mbHideColumnHeaders || core_.parts.ListView1.rows().count() == 0) {
        return 0;
    }
    const WindowHandle header =
        core_.user32.send_message(core_.parts.ListView1.window(), message::list_get_header, 0, 0);
    const auto rect = header != 0 ? core_.user32.window_rect(header) : std::nullopt;
    if (!rect) {
        return 0;
    }
    // One pixel more than the header has, for the line under it.
    return static_cast<float>(
        checked_multiply(rect->bottom - rect->top + 1, std::int32_t{core_.state.miTwipsPerPixelY}));
}

void Placement::settle_headers() {
    ListView& list = core_.parts.ListView1;
    list.set_hide_column_headers(list.rows().count() == 0 || core_.state.mbHideColumnHeaders);
}

int Placement::ListScrollBars() const {
    const std::uint32_t style = core_.user32.style(core_.parts.ListView1.window());
    const int horizontal = (style & window_style::horizontal_scroll_bar) != 0 ? 1 : 0;
    const int vertical = (style & window_style::vertical_scroll_bar) != 0 ? 2 : 0;
    return horizontal + vertical;
}

} // namespace vellora
