// The control's own window without a screen. It grants every height it is asked for, unless told otherwise.
#pragma once

#include "host/surface.h"
#include "support/headless/fonts.h"
#include "support/headless/peer.h"

#include <functional>
#include <string>
#include <vector>

namespace vellora::test {

class HeadlessSurface : public Surface, public WindowOwner, public FocusObserver {
public:
    HeadlessSurface(Desktop& desktop, const Screen& screen, WindowHandle container, std::string name);
    ~HeadlessSurface() override;
    HeadlessSurface(const HeadlessSurface&) = delete;
    HeadlessSurface& operator=(const HeadlessSurface&) = delete;

    void listen(SurfaceListener* listener) override { listener_ = listener; }
    WindowHandle window() const override { return handle_; }
    bool shown() const override { return is_shown; }
    float width() const override { return width_; }
    float height() const override { return height_; }
    float client_width() const override { return width_ - border; }
    void set_height(float height) override;
    float text_height(std::u16string_view text) const override;
    void set_font(const FontRef& new_font) override { font = new_font; }
    void set_back_color(OleColor color) override { back_color = color; }
    void set_enabled(bool value) override;
    void refresh() override { ++refresh_count; }
    void announce(Announcement what) override { announcements.push_back(what); }
    float twips_per_pixel_x() const override { return screen_.twips_per_pixel_x; }
    float twips_per_pixel_y() const override { return screen_.twips_per_pixel_y; }

    /// The container sizes the control.
    void resize(float width, float height);
    /// Somebody changes a property of the font object in use.
    void tell_font_changed();
    /// Moves the control's window on the screen; pixels.
    void place(std::int32_t left, std::int32_t top);

    std::intptr_t handle_message(std::uint32_t message, std::uintptr_t wparam, std::intptr_t lparam) override;
    void focus_moved(WindowHandle from, WindowHandle to) override;

    /// The window that takes the focus for the surface, 0 when none can.
    std::function<WindowHandle()> tab_stop;
    /// Windows outside the surface that count as its own, as the open list does.
    std::function<bool(WindowHandle)> is_ours;
    bool grants_height = true;
    bool is_shown = true;
    float border = 0; // twips that the client area is narrower
    FontRef font;
    OleColor back_color = 0;
    bool enabled = true;
    int refresh_count = 0;
    std::vector<Announcement> announcements;
    /// The last text that was measured.
    mutable std::u16string measured;

private:
    void fit_window();
    bool owns(WindowHandle window) const;
    void take_focus();
    void lose_focus();

    Desktop& desktop_;
    const Screen& screen_;
    WindowHandle handle_ = 0;
    SurfaceListener* listener_ = nullptr;
    bool passing_focus_on_ = false;
    float width_ = 0;
    float height_ = 0;
};

} // namespace vellora::test
