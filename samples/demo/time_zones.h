// The time zones of the world, from the tables of the package tzdata.
#pragma once

#include "hosting/text_rows.h"

namespace vellora::samples {

/// Country, Zone, Coordinates, Comment. The files are looked for in the folder that VELLORA_ZONEINFO names.
/// Throws a Failure when they are missing or damaged.
TextRows read_time_zones();

} // namespace vellora::samples
