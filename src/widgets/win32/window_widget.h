// What all windowed constituents have in common: a place in their parent's client area, being shown and being
// enabled. All of it is read from the window itself.
#pragma once

#include "runtime/geometry.h"
#include "widgets/widget.h"

#include <windows.h>

namespace vellora::win32 {

/// Pixels in the parent's client area, and the same in twips; all zero when the window is gone.
RECT window_place(HWND window);
Bounds window_bounds(HWND window);
void move_window(HWND window, const Bounds& bounds);
/// The window's own setting, whatever the windows around it are.
bool is_window_shown(HWND window);
void show_window(HWND window, bool show);
/// Nothing when the window is gone: for the window system no window would mean the whole screen.
void redraw(HWND window);

/// `Interface` is one of the widget interfaces.
template <class Interface>
class WindowWidget : public Interface {
public:
    WindowHandle window() const override { return reinterpret_cast<WindowHandle>(widget_window()); }
    Bounds bounds() const override { return window_bounds(widget_window()); }
    void move(const Bounds& bounds) override { move_window(widget_window(), bounds); }
    bool visible() const override { return is_window_shown(widget_window()); }
    void set_visible(bool visible) override { show_window(widget_window(), visible); }
    bool enabled() const override { return IsWindowEnabled(widget_window()) != 0; }
    void set_enabled(bool enabled) override { EnableWindow(widget_window(), enabled); }

protected:
    virtual HWND widget_window() const = 0;
};

} // namespace vellora::win32
