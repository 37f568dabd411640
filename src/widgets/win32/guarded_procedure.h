// The edge between the window system, which knows no exceptions, and code that may throw.
#pragma once

#include <windows.h>

namespace vellora::win32 {

/// Runs the body of a window procedure; whatever it throws ends here, and the message counts as handled.
template <class Body>
LRESULT guarded(Body body) noexcept {
    try {
        return body();
    } catch (...) {
        return 0;
    }
}

} // namespace vellora::win32
