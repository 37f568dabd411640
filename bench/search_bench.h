// Completing a typed text and finding a row among 100,000, wherever the row stands.
#pragma once

#include "native_list.h"
#include "report.h"
#include "vellora_list.h"

namespace vellora::bench {

/// What keeps a completion quick, and its memory.
void measure_completing(Report& report);
/// FindItem beside the platform's own search; leaves both lists empty.
void measure_finding(Report& report, VelloraList& list, NativeList& native);
/// FindItem and AddItem by turns.
void measure_adding_unknown(Report& report, VelloraList& list);

} // namespace vellora::bench
