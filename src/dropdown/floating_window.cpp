#include "dropdown/floating_window.h"

#include "dropdown/clsMsgHandler.h"
#include "dropdown/placement.h"
#include "dropdown/resize_frame.h"
#include "items/selection.h"
#include "runtime/checked.h"
#include "runtime/decimal.h"

#include <utility>

namespace vellora {

namespace {

PixelRect to_pixels(const Bounds& bounds, std::int32_t per_pixel_x, std::int32_t per_pixel_y) {
    const auto pixels = [](float twips, std::int32_t per_pixel) {
        return checked_divide(to_long(static_cast<double>(twips)), per_pixel);
    };
    PixelRect rect;
    rect.left = pixels(bounds.left, per_pixel_x);
    rect.top = pixels(bounds.top, per_pixel_y);
    rect.right = checked_add(rect.left, pixels(bounds.width, per_pixel_x));
    rect.bottom = checked_add(rect.top, pixels(bounds.height, per_pixel_y));
    return rect;
}

} // namespace

FloatingWindow::FloatingWindow(ControlCore& core, Placement& placement, ResizeFrame& frame,
                               Selection& selection, clsMsgHandler& MsgHandler)
    : core_(core), placement_(placement), frame_(frame), selection_(selection), MsgHandler_(MsgHandler) {}

void FloatingWindow::subCreateDropDownWindow(const Bounds& bounds) {
    ControlState& state = core_.state;
    PixelRect rect = to_pixels(bounds, state.miTwipsPerPixelX, state.miTwipsPerPixelY);
    state.mlStatic_hWnd = core_.user32.create_popup(rect);
    if (state.mlStatic_hWnd == 0) {
        return;
    }
    const int scroll_bars_before = placement_.ListScrollBars();
    bring_list_in();
    settle_selection();
    placement_.settle_headers();
    if (placement_.ListScrollBars() != scroll_bars_before) {
        make_room_for_scroll_bar(rect);
    }
    if (state.mbAllowResize) {
        add_resize_frame(rect);
    }
    const WindowHandle floating = state.mlStatic_hWnd;
    const WindowHandle list = core_.parts.ListView1.window();
    // Both take the focus away from somebody, who may close the list at once.
    core_.user32.show_popup(floating);
    if (state.mlStatic_hWnd != floating) {
        return;
    }
    core_.user32.set_focus(list);
    if (state.mlStatic_hWnd != floating) {
        return;
    }
    MsgHandler_.SetHook(list);
    keep_caption_active();
}

void FloatingWindow::bring_list_in() {
    ListView& list = core_.parts.ListView1;
    core_.user32.set_parent(list.window(), core_.state.mlStatic_hWnd);
    const Bounds size = list.bounds();
    list.move({0, 0, size.width, size.height});
    list.set_visible(true);
    list.set_enabled(core_.state.mbEnabled);
}

void FloatingWindow::settle_selection() {
    ListRows& rows = core_.parts.ListView1.rows();
    if (rows.selected() < 0) {
        return;
    }
    core_.parts.ListView1.ensure_visible(rows.selected());
    if (selection_.ListIndex() == -1) {
        rows.select(-1);
    }
}

void FloatingWindow::make_room_for_scroll_bar(PixelRect& rect) {
    rect.bottom = checked_add(rect.bottom, std::int32_t{core_.user32.system_metric(system_metric::scroll_bar_height)});
    core_.user32.move_window(core_.state.mlStatic_hWnd, rect, false);
    const std::int32_t width =
        checked_multiply(rect.right - rect.left, std::int32_t{core_.state.miTwipsPerPixelX});
    const std::int32_t height =
        checked_multiply(rect.bottom - rect.top, std::int32_t{core_.state.miTwipsPerPixelY});
    core_.parts.ListView1.move({0, 0, static_cast<float>(width), static_cast<float>(height)});
}

void FloatingWindow::add_resize_frame(const PixelRect& rect) {
    Frame& frame = core_.parts.Frame1;
    core_.user32.set_parent(frame.window(), core_.state.mlStatic_hWnd);
    frame.set_tag(to_decimal(core_.state.mlStatic_hWnd));
    PixelRect grown = rect;
    grown.bottom = checked_add(grown.bottom, frame_.grip_row_pixels());
    core_.user32.move_window(core_.state.mlStatic_hWnd, grown, false);
    frame_.fill(grown);
}

void FloatingWindow::keep_caption_active() {
    const WindowHandle form = core_.site.form_window();
    if (form == 0) {
        return;
    }
    const auto show_active = [this](WindowHandle window) {
        core_.user32.send_message(window, message::non_client_activate, 1, 1);
    };
    if (!core_.site.form_is_mdi_child()) {
        show_active(form);
        return;
    }
    const WindowHandle client = core_.user32.parent(form);
    const WindowHandle frame = core_.user32.parent(client);
    show_active(client);
    show_active(frame);
}

void FloatingWindow::tear_down() {
    // Every step may move the focus, and that may come back here: the list counts as closed from now on.
    const WindowHandle floating = std::exchange(core_.state.mlStatic_hWnd, 0);
    MsgHandler_.UnSetHook();
    take_frame_back(floating);
    ListView& list = core_.parts.ListView1;
    list.mark_header(0);
    list.set_visible(false);
    core_.user32.set_parent(list.window(), core_.surface.window());
    core_.user32.destroy_window(floating);
    keep_caption_active();
}

void FloatingWindow::take_frame_back(WindowHandle floating) {
    Frame& frame = core_.parts.Frame1;
    if (frame.tag() != to_decimal(floating)) {
        return;
    }
    frame.set_tag({});
    frame.set_visible(false);
    core_.user32.set_parent(frame.window(), core_.surface.window());
}

} // namespace vellora
