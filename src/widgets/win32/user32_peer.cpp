#include "widgets/win32/user32_peer.h"

#include <commctrl.h>

namespace vellora::win32 {

namespace {

HWND as_window(WindowHandle window) {
    return reinterpret_cast<HWND>(window);
}
WindowHandle as_handle(HWND window) {
    return reinterpret_cast<WindowHandle>(window);
}

} // namespace

WindowHandle User32Peer::create_popup(const PixelRect& rect) {
    return as_handle(
        create_floating_window({rect.left, rect.top, rect.right, rect.bottom}, focus_.home(), listener_));
}

void User32Peer::show_popup(WindowHandle window) {
    show_floating_window(as_window(window));
}

void User32Peer::destroy_window(WindowHandle window) {
    DestroyWindow(as_window(window));
    focus_.check();
}

void User32Peer::set_parent(WindowHandle child, WindowHandle parent) {
    SetParent(as_window(child), as_window(parent));
}

WindowHandle User32Peer::parent(WindowHandle window) const {
    return as_handle(GetParent(as_window(window)));
}

void User32Peer::move_window(WindowHandle window, const PixelRect& rect, bool repaint) {
    MoveWindow(as_window(window), rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
               repaint);
    // What a window gains without a repaint shows anything at all, its border first; it is painted when there is time.
    RedrawWindow(as_window(window), nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_ALLCHILDREN);
}

std::optional<PixelRect> User32Peer::window_rect(WindowHandle window) const {
    RECT rect{};
    if (!GetWindowRect(as_window(window), &rect)) {
        return std::nullopt;
    }
    return PixelRect{rect.left, rect.top, rect.right, rect.bottom};
}

std::uint32_t User32Peer::style(WindowHandle window) const {
    return static_cast<std::uint32_t>(GetWindowLongPtrW(as_window(window), GWL_STYLE));
}

void User32Peer::set_style(WindowHandle window, std::uint32_t style) {
    SetWindowLongPtrW(as_window(window), GWL_STYLE, static_cast<LONG_PTR>(style));
}

void User32Peer::set_focus(WindowHandle window) {
    SetFocus(as_window(window));
}

void User32Peer::release_capture() {
    ReleaseCapture();
}

PixelPoint User32Peer::cursor() const {
    POINT point{};
    GetCursorPos(&point);
    return {point.x, point.y};
}

int User32Peer::system_metric(int index) const {
    return GetSystemMetrics(index);
}

void User32Peer::post_message(WindowHandle window, std::uint32_t message, std::uintptr_t wparam,
                              std::intptr_t lparam) {
    // For the platform no window would mean the thread.
    if (window != 0) {
        PostMessageW(reinterpret_cast<HWND>(window), message, wparam, lparam);
    }
}

std::intptr_t User32Peer::send_message(WindowHandle window, std::uint32_t message, std::uintptr_t wparam,
                                       std::intptr_t lparam) {
    return SendMessageW(as_window(window), message, wparam, lparam);
}

std::int32_t User32Peer::header_item_at(WindowHandle header, PixelPoint screen) const {
    HDHITTESTINFO hit{};
    hit.pt = {screen.x, screen.y};
    hit.iItem = -1;
    ScreenToClient(as_window(header), &hit.pt);
    SendMessageW(as_window(header), HDM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    return hit.iItem;
}

} // namespace vellora::win32
