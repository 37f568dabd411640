#include "runtime/checked.h"

#include "runtime/host_error.h"

#include <cmath>
#include <limits>

namespace vellora {

namespace {

/// The value as `Target`. Error 6 when it lies outside; a NaN lies outside of everything.
template <class Target, class Source>
Target narrowed(Source value) {
    constexpr auto lowest = static_cast<Source>(std::numeric_limits<Target>::min());
    constexpr auto highest = static_cast<Source>(std::numeric_limits<Target>::max());
    if (!(value >= lowest && value <= highest))
        throw HostError(error_number::overflow);
    return static_cast<Target>(value);
}

/// Independent of the rounding mode, which belongs to the host program.
double rounded_half_to_even(double value) {
    const double below = std::floor(value);
    const double rest = value - below;
    const bool up = rest > 0.5 || (rest == 0.5 && std::fmod(below, 2.0) != 0.0);
    return up ? below + 1.0 : below;
}

} // namespace

std::int16_t checked_add(std::int16_t a, std::int16_t b) {
    return narrowed<std::int16_t>(std::int32_t{a} + std::int32_t{b});
}

std::int32_t checked_add(std::int32_t a, std::int32_t b) {
    return narrowed<std::int32_t>(std::int64_t{a} + std::int64_t{b});
}

std::int16_t checked_multiply(std::int16_t a, std::int16_t b) {
    return narrowed<std::int16_t>(std::int32_t{a} * std::int32_t{b});
}

std::int32_t checked_multiply(std::int32_t a, std::int32_t b) {
    return narrowed<std::int32_t>(std::int64_t{a} * std::int64_t{b});
}

std::int32_t checked_divide(std::int32_t dividend, std::int32_t divisor) {
    if (divisor == 0)
        throw HostError(error_number::division_by_zero);
    return narrowed<std::int32_t>(std::int64_t{dividend} / std::int64_t{divisor});
}

std::int16_t to_integer(std::int32_t value) {
    return narrowed<std::int16_t>(value);
}

std::int16_t to_integer(double value) {
    return narrowed<std::int16_t>(rounded_half_to_even(value));
}

std::int32_t to_long(double value) {
    return narrowed<std::int32_t>(rounded_half_to_even(value));
}

std::size_t checked_slot(std::int32_t one_based_index, std::size_t size) {
    if (one_based_index < 1 || static_cast<std::size_t>(one_based_index) > size)
        throw HostError(error_number::subscript_out_of_range);
    return static_cast<std::size_t>(one_based_index) - 1;
}

} // namespace vellora
