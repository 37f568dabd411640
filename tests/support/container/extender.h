// The extender of a control: Name, Left, Top, Width, Height (twips) and Parent with hWnd and MDIChild.
#pragma once

#include "support/container/site_state.h"

#include <oaidl.h>

namespace vellora::test {

/// Holds the site alive for as long as somebody holds the extender.
Microsoft::WRL::ComPtr<IDispatch> make_extender(SiteState& state);

} // namespace vellora::test
