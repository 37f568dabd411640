#include "widgets/win32/frame_peer.h"

#include "widgets/win32/paint_buffer.h"

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
        return receive_mouse(*this, message, lparam) ? 0 : DefWindowProcW(window, message, wparam, lparam);
    }
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

void FramePeer::mouse_pressed(std::int16_t button, POINT point) {
    pressed_ = target_of(point);
    if (pressed_ != nullptr) {
        if (GetCapture() != handle()) {
            SetCapture(handle());
        }
        pressed_->mouse_pressed(button);
    }
}

void FramePeer::mouse_released(std::int16_t, POINT) {
    ReleaseCapture();
}

// What moves under the mouse may want another pointer than it had when the mouse came.
void FramePeer::mouse_moved(POINT point) {
    FrameContent* const content = target_of(point);
    if (content == nullptr) {
        return;
    }
    const Lifeline::Watch watch(lifeline_);
    content->mouse_moved();
    const FrameContent* const now = watch.alive() ? target_of(point) : nullptr;
    if (now != nullptr) {
        show_cursor(now->cursor());
    }
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
