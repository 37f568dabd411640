// The control's own window: a sunken field that its constituents stand in.
#pragma once

#include "host/surface.h"
#include "runtime/system_colors.h"
#include "widgets/win32/focus_tracker.h"
#include "widgets/win32/lifeline.h"
#include "widgets/win32/ole_color.h"
#include "widgets/win32/ole_font.h"
#include "widgets/win32/own_window.h"

namespace vellora::win32 {

/// What the window asks of whoever hosts it.
class SurfaceHost {
public:
    /// The control would like another outer height. Granting it means resizing the window.
    virtual void surface_wants_height(int pixels) = 0;
    /// The keyboard focus came into the control from outside. May end the control.
    virtual void surface_focus_entered() = 0;
    /// The focus went out of it again.
    virtual void surface_focus_left() = 0;
    /// Its list floats over the form from now on, or no longer does.
    virtual void surface_list_opened_or_closed() = 0;
    /// What assistive software gets for the surface or its text box: the answer to WM_GETOBJECT, 0 where the platform
    /// has one that serves.
    virtual LRESULT surface_object(HWND window, WPARAM wparam, LPARAM lparam) = 0;

protected:
    ~SurfaceHost() = default;
};

class SurfaceWindow final : public Surface, private OwnWindow, private FocusListener {
public:
    /// Created hidden, without size, as a child of `parking`. Throws std::bad_alloc without a window.
    explicit SurfaceWindow(HWND parking);
    ~SurfaceWindow() override = default;

    using OwnWindow::handle;
    /// Without a host the window takes every height that is asked for.
    void set_host(SurfaceHost* host) { host_ = host; }
    FocusTracker& focus_tracker() { return focus_tracker_; }
    OleColor back_color() const { return back_color_; }
    /// What its host answers to WM_GETOBJECT for the surface or one of its text boxes; 0 for no answer of its own.
    LRESULT accessible_object(HWND window, WPARAM wparam, LPARAM lparam);

    void listen(SurfaceListener* listener) override { listener_ = listener; }
    WindowHandle window() const override { return reinterpret_cast<WindowHandle>(handle()); }
    bool shown() const override;
    float width() const override;
    float height() const override;
    float client_width() const override;
    void set_height(float height) override;
    float text_height(std::u16string_view text) const override;
    void set_font(const FontRef& font) override { font_.set(font); }
    void set_back_color(OleColor color) override;
    void set_enabled(bool enabled) override { EnableWindow(handle(), enabled); }
    void refresh() override;
    void announce(Announcement what) override;
    float twips_per_pixel_x() const override;
    float twips_per_pixel_y() const override;

private:
    LRESULT on_message(HWND window, UINT message, WPARAM wparam, LPARAM lparam) override;
    LRESULT answer_child(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
    LRESULT paint_border(HWND window, WPARAM wparam, LPARAM lparam);
    LRESULT describe(HWND window, WPARAM wparam, LPARAM lparam);
    LRESULT erase(HWND window, HDC dc);
    LRESULT take_focus(HWND window, HWND previous);
    LRESULT lose_focus(HWND next);
    LRESULT change_look(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
    LRESULT tell_shown(HWND window, WPARAM wparam, LPARAM lparam);
    LRESULT tell_enabled(HWND window, WPARAM wparam);
    LRESULT tell_resized();
    LRESULT tell_destroyed();
    void tell_font(bool changed);
    void focus_entered() override;
    void focus_left() override;

    Lifeline lifeline_;
    FocusTracker focus_tracker_{*this};
    SurfaceListener* listener_ = nullptr;
    SurfaceHost* host_ = nullptr;
    bool passing_focus_on_ = false;
    OleColor back_color_ = system_color::window;
    ColorBrush background_;
    FontInUse font_{[this](HFONT, bool changed) { tell_font(changed); }};
};

} // namespace vellora::win32
