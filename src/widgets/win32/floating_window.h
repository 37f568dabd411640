// The window that floats above everything while a list is open. It is of the platform's "Static" class, by
// which other software knows it; what such a window lacks as a container is added here.
#pragma once

#include "widgets/win32/handles.h"

namespace vellora::win32 {

class FloatingWindowListener {
public:
    /// The user asked to close the floating window. It stays unless the listener ends it; the same request
    /// then goes on to the form.
    virtual void close_requested() = 0;
    /// The window had the focus itself, as its list could not take it, and lost it.
    virtual void floating_window_left() = 0;

protected:
    ~FloatingWindowListener() = default;
};

/// Creates the window, not shown yet, for the control whose surface is `home`. Null when it cannot be made.
/// `listener` may be null and is asked as long as the window stands.
HWND create_floating_window(const RECT& place, HWND home, FloatingWindowListener* listener);
/// Shows and activates it, with all that is in it already painted.
void show_floating_window(HWND window);

} // namespace vellora::win32
