#include "widgets/win32/check_button_peer.h"

#include "widgets/win32/paint_buffer.h"
#include "widgets/win32/visual_style.h"

namespace vellora::win32 {

namespace {

constexpr std::int16_t left_button = 1;

const WindowClass& button_class() {
    static const WindowClass window_class(L"VelloraButton", true);
    return window_class;
}

void watch_for_leaving(HWND window) {
    TRACKMOUSEEVENT request{sizeof request, TME_LEAVE, window, 0};
    TrackMouseEvent(&request);
}

} // namespace

CheckButtonPeer::CheckButtonPeer(SurfaceWindow& surface, int index, int looks_pressed_at)
    : focus_(surface.focus_tracker()), index_(index), looks_pressed_at_(looks_pressed_at) {
    create(button_class(), WS_CHILD | WS_CLIPSIBLINGS, 0, surface.handle());
}

ButtonFace CheckButtonPeer::face() const {
    const bool held = space_held_ || (press_ && press_->button == left_button && press_->inside);
    // Nobody says that the mouse has left while a press holds it.
    const bool hot = hot_ && (!press_ || press_->inside);
    return {caption_, fore_color_, back_color_, held || is_down(), enabled(), hot};
}

void CheckButtonPeer::set_value(int value) {
    if (value == value_) {
        return;
    }
    value_ = value;
    changed_at_ = GetTickCount();
    redraw(handle());
    if (listener_ != nullptr) {
        listener_->button_clicked(index_);
    }
}

void CheckButtonPeer::set_visible(bool visible) {
    if (visible != this->visible()) {
        changed_at_ = GetTickCount();
        WindowWidget::set_visible(visible);
        // Two buttons take turns in one place; the gap between them would show until all other work is done.
        UpdateWindow(handle());
    }
}

void CheckButtonPeer::set_caption(std::u16string_view caption) {
    caption_ = caption;
    redraw(handle());
}

void CheckButtonPeer::set_fore_color(OleColor color) {
    fore_color_ = checked_color(color);
    redraw(handle());
}

void CheckButtonPeer::set_back_color(OleColor color) {
    back_color_ = checked_color(color);
    redraw(handle());
}

LRESULT CheckButtonPeer::on_message(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
    case WM_CAPTURECHANGED:
        cancel_press();
        return 0;
    case WM_SHOWWINDOW:
    case WM_ENABLE:
        redraw(window);
        if (wparam == FALSE) {
            cancel_press();
        }
        return 0;
    case WM_KEYDOWN:
    case WM_KEYUP:
        return key(window, message, wparam, lparam);
    case WM_SETFOCUS:
        focus_.arrived_from(reinterpret_cast<HWND>(wparam));
        return 0;
    case WM_KILLFOCUS:
        space_held_ = false;
        redraw(window);
        focus_.left_to(reinterpret_cast<HWND>(wparam));
        return 0;
    case WM_MOUSELEAVE:
        return mouse_left();
    case WM_ERASEBKGND:
        return 1;
    case WM_PAINT:
        return paint(window);
    default:
        return receive_mouse(*this, message, lparam) ? 0 : DefWindowProcW(window, message, wparam, lparam);
    }
}

// A press on the button of an open list activates the form, and that closes the list before the press arrives
// here. Such a press was meant for the list that was open, not for opening it again. The second press of a
// quick double click is old as well when opening takes its time, but it finds the list open and closes it.
//
// The focus comes last: it too closes an open list, which may take the capture away or hide the button.
void CheckButtonPeer::mouse_pressed(std::int16_t button, POINT point) {
    const bool outdated = !is_down() && changed_at_ && is_mouse_older_than(*changed_at_, handle(), point);
    if (press_ || !visible() || outdated) {
        return;
    }
    const Lifeline::Watch watch(lifeline_);
    press_ = Press{button, true};
    SetCapture(handle());
    redraw(handle());
    if (listener_ != nullptr) {
        listener_->button_pressed(index_);
    }
    if (watch.alive() && press_ && button == left_button) {
        SetFocus(handle());
    }
}

void CheckButtonPeer::mouse_released(std::int16_t button, POINT point) {
    if (!press_ || press_->button != button) {
        return;
    }
    const bool clicks = button == left_button && contains(point);
    const Lifeline::Watch watch(lifeline_);
    press_.reset();
    ReleaseCapture();
    redraw(handle());
    tell_released();
    if (watch.alive() && clicks && visible()) {
        toggle();
    }
}

void CheckButtonPeer::mouse_moved(POINT point) {
    const bool inside = contains(point);
    if (!hot_ && inside && uses_visual_styles()) {
        hot_ = true;
        watch_for_leaving(handle());
        redraw(handle());
    }
    if (press_ && press_->inside != inside) {
        press_->inside = inside;
        redraw(handle());
    }
}

LRESULT CheckButtonPeer::mouse_left() {
    hot_ = false;
    redraw(handle());
    return 0;
}

void CheckButtonPeer::cancel_press() {
    if (!press_) {
        return;
    }
    press_.reset();
    if (GetCapture() == handle()) {
        ReleaseCapture();
    }
    redraw(handle());
    tell_released();
}

LRESULT CheckButtonPeer::key(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (wparam != VK_SPACE) {
        return DefWindowProcW(window, message, wparam, lparam);
    }
    const bool clicks = message == WM_KEYUP && space_held_;
    space_held_ = message == WM_KEYDOWN;
    redraw(window);
    if (clicks) {
        toggle();
    }
    return 0;
}

void CheckButtonPeer::toggle() {
    set_value(value_ == 0 ? 1 : 0);
}

void CheckButtonPeer::tell_released() {
    if (listener_ != nullptr) {
        listener_->button_released(index_);
    }
}

bool CheckButtonPeer::contains(POINT point) const {
    RECT client{};
    GetClientRect(handle(), &client);
    return PtInRect(&client, point) != 0;
}

LRESULT CheckButtonPeer::paint(HWND window) {
    const PaintBuffer buffer(window);
    // Themes draw no more than a part of a button; what lies behind it shows through.
    DrawThemeParentBackground(window, buffer.dc(), nullptr);
    paint_button(buffer.dc(), buffer.client(), face());
    return 0;
}

} // namespace vellora::win32
