// One typed character through the whole control.
#pragma once

#include "report.h"
#include "vellora_list.h"

namespace vellora::bench {

/// The bound is 1 ms for any key. Leaves the list empty and completion off.
void measure_typing(Report& report, VelloraList& list);

} // namespace vellora::bench
