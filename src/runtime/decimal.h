// Whole numbers as decimal text.
#pragma once

#include <cstdint>
#include <string>

namespace vellora {

std::u16string to_decimal(std::intptr_t number);

} // namespace vellora
