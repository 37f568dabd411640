// One typed character through the whole control, from the key down to the painted text.
#pragma once

#include "report.h"
#include "vellora_list.h"

namespace vellora::bench {

/// Beside an edit field of the platform, and with a long list beside a short one: a key takes as long as the platform's
/// field takes, and no longer for more rows. Leaves the lists empty and completion off.
void measure_typing(Report& report, VelloraList& list, VelloraList& short_list);

} // namespace vellora::bench
