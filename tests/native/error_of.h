// The number of the error a call ended with, where only the number matters.
#pragma once

#include "support/headless/failure.h"

#include <cstdint>

namespace vellora::test {

/// 0 when the call came back.
template <class Call>
std::int32_t error_of(const Call& call) {
    return failure_of(call).number;
}

} // namespace vellora::test
