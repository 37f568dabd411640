// The about box: a dialog of the platform, laid out in the resources.
#pragma once

#include "host/library.h"

#include <windows.h>

namespace vellora::server {

/// Comes back when the user has closed the box, or when `form` ended under it. The form's top-level window is
/// disabled meanwhile; where that is so already, the box stands over whatever disabled it. Without a form the
/// thread's active window serves, if there is one.
void show_about_box(HWND form, const AboutTexts& texts);

} // namespace vellora::server
