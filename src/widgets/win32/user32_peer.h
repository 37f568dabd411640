// The window system itself, for what the behaviour asks of it beyond its constituents.
#pragma once

#include "widgets/user32.h"
#include "widgets/win32/floating_window.h"
#include "widgets/win32/focus_tracker.h"

#include <windows.h>

namespace vellora::win32 {

class User32Peer final : public User32 {
public:
    /// Floating windows belong to the control whose focus is tracked, and tell the listener, which may be
    /// null. Both outlive this.
    User32Peer(FocusTracker& focus, FloatingWindowListener* listener) : focus_(focus), listener_(listener) {}

    WindowHandle create_popup(const PixelRect& rect) override;
    void show_popup(WindowHandle window) override;
    void destroy_window(WindowHandle window) override;
    void set_parent(WindowHandle child, WindowHandle parent) override;
    WindowHandle parent(WindowHandle window) const override;
    void move_window(WindowHandle window, const PixelRect& rect, bool repaint) override;
    std::optional<PixelRect> window_rect(WindowHandle window) const override;
    std::uint32_t style(WindowHandle window) const override;
    void set_style(WindowHandle window, std::uint32_t style) override;
    void set_focus(WindowHandle window) override;
    void release_capture() override;
    PixelPoint cursor() const override;
    int system_metric(int index) const override;
    void post_message(WindowHandle window, std::uint32_t message, std::uintptr_t wparam,
                      std::intptr_t lparam) override;
    std::intptr_t send_message(WindowHandle window, std::uint32_t message, std::uintptr_t wparam,
                               std::intptr_t lparam) override;
    std::int32_t header_item_at(WindowHandle header, PixelPoint screen) const override;

private:
    FocusTracker& focus_;
    FloatingWindowListener* listener_;
};

} // namespace vellora::win32
