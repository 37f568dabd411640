// Checking and counting 100,000 rows.
#pragma once

#include "native_list.h"
#include "report.h"
#include "vellora_list.h"

namespace vellora::bench {

/// Leaves both lists empty.
void measure_checking(Report& report, VelloraList& list, NativeList& native, SampleRows& rows);

} // namespace vellora::bench
