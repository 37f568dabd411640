// Arithmetic of the host language: results that leave their type raise error 6 (overflow), indexes that
// leave an array error 9 (subscript out of range), and halves round to the even neighbour.
#pragma once

#include <cstddef>
#include <cstdint>

namespace vellora {

/// Adds, multiplies in 16 or 32 bits. Error 6 when the result leaves the type.
std::int16_t checked_add(std::int16_t a, std::int16_t b);
std::int32_t checked_add(std::int32_t a, std::int32_t b);
std::int16_t checked_multiply(std::int16_t a, std::int16_t b);
std::int32_t checked_multiply(std::int32_t a, std::int32_t b);

/// Integer division. Error 11 when the divisor is 0, error 6 for the one quotient that does not fit.
std::int32_t checked_divide(std::int32_t dividend, std::int32_t divisor);

/// Narrows or rounds half to even. Error 6 when the result leaves the type or is not a number.
std::int16_t to_integer(std::int32_t value);
std::int16_t to_integer(double value);
std::int32_t to_long(double value);

/// Position in a fixed per-column array for a 1-based column number. Error 9 outside 1 to `size`.
std::size_t checked_slot(std::int32_t one_based_index, std::size_t size);

} // namespace vellora
