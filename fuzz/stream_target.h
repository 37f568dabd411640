#pragma once

#include "fuzz/fuzzer.h"

namespace vellora::fuzz {

/// Settings as a stream of bytes.
Target stream_target();

} // namespace vellora::fuzz
