// Whether the keyboard focus is in the control, seen from the windows that can have it. The control reaches
// as far as its surface and the floating window of its open list.
#pragma once

#include <windows.h>

namespace vellora::win32 {

class FocusListener {
public:
    /// The focus came from outside.
    virtual void focus_entered() = 0;
    /// The focus went out of the control altogether. May end the control.
    virtual void focus_left() = 0;

protected:
    ~FocusListener() = default;
};

class FocusTracker {
public:
    explicit FocusTracker(FocusListener& listener) : listener_(listener) {}

    void set_home(HWND surface) { home_ = surface; }
    HWND home() const { return home_; }
    /// To be told by whoever gets WM_SETFOCUS or WM_KILLFOCUS in the control: the window the focus comes from
    /// or goes to, null for one of another thread.
    void arrived_from(HWND previous);
    void left_to(HWND next);
    /// Where the focus went while a floating window went, which is when nobody could tell.
    void check();

private:
    bool owns(HWND window) const;

    FocusListener& listener_;
    HWND home_ = nullptr;
    bool inside_ = false;
};

/// Marks a floating window as part of the control whose surface is `home`.
void mark_floating_window(HWND window, HWND home);
void unmark_floating_window(HWND window);

} // namespace vellora::win32
