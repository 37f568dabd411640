#pragma once

#include <string>
#include <vector>

namespace vellora::fuzz {

/// Every key that is saved; those of columns for the first two, the last and one beyond.
const std::vector<std::u16string>& saved_keys();

} // namespace vellora::fuzz
