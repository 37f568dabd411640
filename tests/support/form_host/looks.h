// What a test compares a control's look with: the platform's own combo box, the control's portrait, and the
// colours of the system.
#pragma once

#include "support/form_host/host_form.h"
#include "support/form_host/json.h"

namespace vellora::test {

/// A combo box of the platform with an edit field, in the font that new controls get.
Json create_combo(HostForm& host, const Json& command);
/// Any other window of the platform: a label, a text field, a button.
Json create_window(HostForm& host, const Json& command);
/// Shows what the control draws of itself for a container that asks for a picture.
Json create_portrait(HostForm& host, const Json& command);
Json get_system_colors(HostForm& host, const Json& command);
Json set_system_colors(HostForm& host, const Json& command);
/// Puts the form's programs under the platform's visual styles, for windows made from now on.
void use_visual_styles();

} // namespace vellora::test
