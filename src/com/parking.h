// Where controls' windows live while no container shows them: a hidden window, one a thread. A control's
// window is therefore there from the beginning to the end and keeps its state between activations.
#pragma once

#include "com/ole.h"

namespace vellora::com {

/// A share in the thread's parking window. Not to be handed to another thread.
class Parking {
public:
    /// Throws ComFailure when there can be no window.
    Parking();
    Parking(const Parking&) = delete;
    Parking& operator=(const Parking&) = delete;
    ~Parking();

    HWND window() const noexcept;
    /// Takes a window in, hidden.
    void park(HWND control) const noexcept;
};

} // namespace vellora::com
