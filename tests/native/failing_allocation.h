// Memory that runs out on demand, and a count of what is in use.
#pragma once

#include <cstddef>

namespace vellora::test {

/// While it lives, the allocation after `allowed` further ones fails, and all that follow.
class FailingAllocation {
public:
    explicit FailingAllocation(std::size_t allowed);
    ~FailingAllocation();
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;
};

/// Bytes the process holds, as the allocator rounds them up.
std::size_t bytes_in_use();

/// The most it held at any time since `forget_peak`.
std::size_t peak_bytes();
void forget_peak();

} // namespace vellora::test
