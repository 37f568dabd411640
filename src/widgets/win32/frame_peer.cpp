#include "widgets/win32/frame_peer.h"

#include "widgets/win32/paint_buffer.h"
#include "widgets/win32/user_input.h"

#include <algorithm>
#include <utility>

namespace vellora::win32 {

namespace {

const WindowClass& frame_class() {
    static const WindowClass window_class(L"VelloraFrame", true);
    return window_class;
}

LRESULT stay_behind(LPARAM lparam) {
    auto& position = *reinterpret_cast<WINDOWPOS*>(lparam);
    position.hwndInsertAfter = HWND_BOTTOM;
    position.flags &= ~static_cast<UINT>(SWP_NOZORDER);
    return 0;
}

void show_cursor(HCURSOR cursor) {
    SetCursor(cursor != nullptr ? cursor : LoadCursorW(nullptr, IDC_ARROW));
}

} // namespace

FramePeer::FramePeer(SurfaceWindow& surface) {
    create(frame_class(), WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, 0, surface.handle());
}

void FramePeer::set_back_color(OleColor color) {
    back_color_ = checked_color(color);
    repaint();
}

void FramePeer::remove(FrameContent& content) {
    std::erase(contents_, &content);
    if (pressed_ == &content) {
        pressed_ = nullptr;
    }
}

LRESULT FramePeer::on_message(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
    case WM_WINDOWPOSCHANGING:
        return stay_behind(lparam);
    case WM_MOUSEACTIVATE:
        return MA_NOACTIVATE; // the focus stays in the list
    case WM_SETCURSOR:
        return choose_cursor(window, wparam, lparam);
    case WM_CAPTURECHANGED:
        return release();
    case WM_SHOWWINDOW:
        if (wparam == FALSE && GetCapture() == window) {
            ReleaseCapture();
        }
        return 0;
    case WM_ERASEBKGND:
        return 1;
    case WM_PAINT:
        return paint(window);
    default:
        return on_mouse(window, message, wparam, lparam);
    }
}

LRESULT FramePeer::on_mouse(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_MOUSEMOVE) {
        return move_mouse(point_of(lparam));
    }
    if (is_button_down(message)) {
        return press(point_of(lparam), button_of(message));
    }
    if (is_button_up(message)) {
        ReleaseCapture();
        return 0;
    }
    return DefWindowProcW(window, message, wparam, lparam);
}

FrameContent* FramePeer::content_at(POINT point) const {
    const auto hit = std::find_if(contents_.rbegin(), contents_.rend(), [&](const FrameContent* content) {
        return content->takes_mouse_at(point);
    });
    return hit != contents_.rend() ? *hit : nullptr;
}

FrameContent* FramePeer::target_of(POINT point) const {
    return pressed_ != nullptr ? pressed_ : content_at(point);
}

LRESULT FramePeer::press(POINT point, std::int16_t button) {
    pressed_ = target_of(point);
    if (pressed_ != nullptr) {
        if (GetCapture() != handle()) {
            SetCapture(handle());
        }
        pressed_->mouse_pressed(button);
    }
    return 0;
}

// What moves under the mouse may want another pointer than it had when the mouse came.
LRESULT FramePeer::move_mouse(POINT point) {
    FrameContent* const content = target_of(point);
    if (content == nullptr) {
        return 0;
    }
    const Lifeline::Watch watch(lifeline_);
    content->mouse_moved();
    const FrameContent* const now = watch.alive() ? target_of(point) : nullptr;
    if (now != nullptr) {
        show_cursor(now->cursor());
    }
    return 0;
}

LRESULT FramePeer::release() {
    if (FrameContent* const content = std::exchange(pressed_, nullptr)) {
        content->mouse_released();
    }
    return 0;
}

LRESULT FramePeer::choose_cursor(HWND window, WPARAM wparam, LPARAM lparam) {
    POINT point{};
    GetCursorPos(&point);
    ScreenToClient(window, &point);
    const FrameContent* const content = LOWORD(lparam) == HTCLIENT ? content_at(point) : nullptr;
    if (content == nullptr) {
        return DefWindowProcW(window, WM_SETCURSOR, wparam, lparam);
    }
    show_cursor(content->cursor());
    return TRUE;
}

LRESULT FramePeer::paint(HWND window) {
    const PaintBuffer buffer(window);
    FillRect(buffer.dc(), &buffer.client(), background_.get(back_color_));
    for (const FrameContent* content : contents_) {
        content->paint(buffer.dc());
    }
    return 0;
}

} // namespace vellora::win32
