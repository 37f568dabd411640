// What the behaviour asks of the window system beyond its constituents, all in pixels.
#pragma once

#include "runtime/geometry.h"

#include <cstdint>
#include <optional>

namespace vellora {

/// Window messages, notification codes and system metrics the behaviour names. Source: the platform's public
/// headers winuser.h and commctrl.h.
namespace message {
inline constexpr std::uint32_t destroy = 0x0002;
inline constexpr std::uint32_t kill_focus = 0x0008;
inline constexpr std::uint32_t notify = 0x004E;
inline constexpr std::uint32_t non_client_activate = 0x0086;
inline constexpr std::uint32_t key_down = 0x0100;
inline constexpr std::uint32_t edit_set_margins = 0x00D3;
inline constexpr std::uint32_t list_get_header = 0x101F;
inline constexpr std::uint32_t list_set_column_width = 0x101E;
inline constexpr std::uint32_t list_set_column_order = 0x103A;
inline constexpr std::uint32_t list_get_column_order = 0x103B;
} // namespace message

namespace notification {
inline constexpr std::int32_t header_begin_track_ansi = -306;
inline constexpr std::int32_t header_begin_track_wide = -326;
inline constexpr std::int32_t header_divider_double_click_ansi = -305;
inline constexpr std::int32_t header_divider_double_click_wide = -325;
inline constexpr std::int32_t header_end_drag = -311;
} // namespace notification

namespace system_metric {
inline constexpr int scroll_bar_height = 9; // SM_CYVTHUMB: as tall as a horizontal scroll bar
inline constexpr int scroll_bar_thumb_width = 10; // SM_CXHTHUMB
// All screens together: SM_XVIRTUALSCREEN and the three that follow.
inline constexpr int screens_left = 76;
inline constexpr int screens_top = 77;
inline constexpr int screens_width = 78;
inline constexpr int screens_height = 79;
} // namespace system_metric

namespace window_style {
inline constexpr std::uint32_t horizontal_scroll_bar = 0x00100000;
inline constexpr std::uint32_t vertical_scroll_bar = 0x00200000;
} // namespace window_style

class User32 {
public:
    virtual ~User32() = default;

    /// A tool window without border or caption that belongs to the desktop, not shown yet; 0 when it cannot be made.
    virtual WindowHandle create_popup(const PixelRect& rect) = 0;
    /// Shows a popup and activates it, with everything in it already painted.
    virtual void show_popup(WindowHandle window) = 0;
    virtual void destroy_window(WindowHandle window) = 0;
    virtual void set_parent(WindowHandle child, WindowHandle parent) = 0;
    virtual WindowHandle parent(WindowHandle window) const = 0;
    /// Screen coordinates for a window without a parent, else the parent's client area.
    virtual void move_window(WindowHandle window, const PixelRect& rect, bool repaint) = 0;
    /// On the screen; nothing when the window does not exist.
    virtual std::optional<PixelRect> window_rect(WindowHandle window) const = 0;
    virtual std::uint32_t style(WindowHandle window) const = 0;
    virtual void set_style(WindowHandle window, std::uint32_t style) = 0;
    virtual void set_focus(WindowHandle window) = 0;
    virtual void release_capture() = 0;
    virtual PixelPoint cursor() const = 0;
    virtual int system_metric(int index) const = 0;
    virtual std::intptr_t send_message(WindowHandle window, std::uint32_t message, std::uintptr_t wparam,
                                       std::intptr_t lparam) = 0;
    /// Puts a message behind those that wait already.
    virtual void post_message(WindowHandle window, std::uint32_t message, std::uintptr_t wparam,
                              std::intptr_t lparam) = 0;
    /// The 0-based item of a header window under a screen point, -1 for none.
    virtual std::int32_t header_item_at(WindowHandle header, PixelPoint screen) const = 0;
};

} // namespace vellora
