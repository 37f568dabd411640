// Sorting 100,000 rows, all of them or after one change, and looking up where a row stands.
#pragma once

#include "report.h"
#include "vellora_list.h"

namespace vellora::bench {

/// Both sides make one key per row, by the same comparison, within the measured time.
void measure_sorting(Report& report);
/// NewIndex and ListIndex of a long list beside a short one; leaves both empty.
void measure_looking_up(Report& report, VelloraList& list, VelloraList& short_list, const SampleRows& rows);

} // namespace vellora::bench
