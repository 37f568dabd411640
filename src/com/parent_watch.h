// Getting out of a container's window in time: a window takes its children along when it is destroyed, but
// the control's window has to outlive it.
#pragma once

#include "com/ole.h"

namespace vellora::com {

class Activation;

/// Until unwatched, the activation is told to leave when `parent` is destroyed.
void watch_parent(HWND parent, Activation& activation) noexcept;
/// Also for a window that is gone, or none.
void unwatch_parent(HWND parent, Activation& activation) noexcept;

} // namespace vellora::com
