// Quick activation: everything a host has to say in one call.
#pragma once

#include "support/container/site.h"

namespace vellora::test {

/// Gives the control its site and connects all sinks. `answer` tells which connections were made.
HRESULT quick_activate(Site& site, IAdviseSinkEx* view_sink, QACONTROL& answer);

} // namespace vellora::test
