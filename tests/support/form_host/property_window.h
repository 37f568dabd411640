// The property pages of a control: in the platform's own property window, and by themselves.
#pragma once

#include "support/form_host/host_form.h"

namespace vellora::test {

/// Stands until the user closes it.
Json show_properties(HostForm& host, const Json& command);
/// One page on the form itself, in the place of the one before.
Json show_page(HostForm& host, const Json& command);

} // namespace vellora::test
