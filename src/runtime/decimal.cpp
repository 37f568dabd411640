#include "runtime/decimal.h"

namespace vellora {

std::u16string to_decimal(std::intptr_t number) {
    const std::string digits = std::to_string(number);
    return std::u16string(digits.begin(), digits.end());
}

} // namespace vellora
