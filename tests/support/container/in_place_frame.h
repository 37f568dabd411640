// IOleInPlaceFrame of the form's frame window, and IOleInPlaceUIWindow of an MDI child: border space and
// menus are refused, the UI-active control is noted for the message loop.
#pragma once

#include "support/container/site_state.h"

#include <oleidl.h>

namespace vellora::test {

/// `document` makes the one of the MDI child instead of the frame's.
Microsoft::WRL::ComPtr<IOleInPlaceFrame> make_frame(SiteState& state, bool document);

} // namespace vellora::test
