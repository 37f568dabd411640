#pragma once

#include "fuzz/fuzzer.h"

namespace vellora::fuzz {

/// Settings as a container's property bag gives them: each key absent, of any type, or an error.
Target bag_target();

} // namespace vellora::fuzz
