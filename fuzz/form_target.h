#pragma once

#include "fuzz/fuzzer.h"

namespace vellora::fuzz {

/// A form file of the container sample and, behind its first zero byte, its companion file.
Target form_target();

} // namespace vellora::fuzz
