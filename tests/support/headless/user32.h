// The window system's functions on the simulated desktop. Every call that changes something is a line of the
// journal, with windows by name.
#pragma once

#include "support/headless/desktop.h"
#include "widgets/user32.h"

#include <functional>
#include <map>

namespace vellora::test {

class HeadlessUser32 : public User32 {
public:
    explicit HeadlessUser32(Desktop& desktop) : desktop_(desktop) {}

    WindowHandle create_popup(const PixelRect& rect) override;
    void show_popup(WindowHandle window) override;
    void destroy_window(WindowHandle window) override;
    void set_parent(WindowHandle child, WindowHandle parent) override;
    WindowHandle parent(WindowHandle window) const override;
    void move_window(WindowHandle window, const PixelRect& rect, bool repaint) override;
    std::optional<PixelRect> window_rect(WindowHandle window) const override;
    std::uint32_t style(WindowHandle window) const override;
    void set_style(WindowHandle window, std::uint32_t style) override;
    void set_focus(WindowHandle window) override { desktop_.set_focus(window); }
    void release_capture() override;
    PixelPoint cursor() const override { return desktop_.cursor; }
    int system_metric(int index) const override;
    void post_message(WindowHandle window, std::uint32_t message, std::uintptr_t wparam,
                      std::intptr_t lparam) override;
    std::intptr_t send_message(WindowHandle window, std::uint32_t message, std::uintptr_t wparam,
                               std::intptr_t lparam) override;
    std::int32_t header_item_at(WindowHandle header, PixelPoint screen) const override;

    bool popups_fail = false;
    /// Runs while a popup is shown, as the host's own code may.
    std::function<void()> when_popup_shows;
    /// The window whose rectangle cannot be read.
    WindowHandle without_rect = 0;
    std::map<int, int> metrics{{system_metric::scroll_bar_height, 17},
                               {system_metric::scroll_bar_thumb_width, 16},
                               {system_metric::screens_left, -1600},
                               {system_metric::screens_top, 0},
                               {system_metric::screens_width, 1600 + 1280},
                               {system_metric::screens_height, 1024}};
    /// The header item under the cursor, whatever the cursor's place.
    std::int32_t hit_item = -1;
    /// The place that was last hit-tested.
    mutable PixelPoint hit_point;

private:
    void log(std::string line) const;

    Desktop& desktop_;
};

} // namespace vellora::test
