#include "native/failing_allocation.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <malloc.h>
#include <new>

namespace {

constexpr std::size_t unlimited = std::numeric_limits<std::size_t>::max();

std::size_t allowed_allocations = unlimited;
std::size_t in_use = 0;
std::size_t peak = 0;

std::size_t size_of(void* block) {
#ifdef _WIN32
    return block ? _msize(block) : 0;
#else
    return malloc_usable_size(block);
#endif
}

void* allocate(std::size_t bytes) {
    if (allowed_allocations == 0)
        throw std::bad_alloc();
    if (allowed_allocations != unlimited)
        --allowed_allocations;
    void* block = std::malloc(bytes == 0 ? 1 : bytes);
    if (!block)
        throw std::bad_alloc();
    in_use += size_of(block);
    peak = std::max(peak, in_use);
    return block;
}

void release(void* block) {
    in_use -= size_of(block);
    std::free(block);
}

} // namespace

void* operator new(std::size_t bytes) {
    return allocate(bytes);
}
void* operator new[](std::size_t bytes) {
    return allocate(bytes);
}
void* operator new(std::size_t bytes, const std::nothrow_t&) noexcept {
    try {
        return allocate(bytes);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}
void operator delete(void* block) noexcept {
    release(block);
}
void operator delete[](void* block) noexcept {
    release(block);
}
void operator delete(void* block, std::size_t) noexcept {
    release(block);
}
void operator delete[](void* block, std::size_t) noexcept {
    release(block);
}

namespace vellora::test {

FailingAllocation::FailingAllocation(std::size_t allowed) {
    allowed_allocations = allowed;
}

FailingAllocation::~FailingAllocation() {
    allowed_allocations = unlimited;
}

std::size_t bytes_in_use() {
    return in_use;
}

std::size_t peak_bytes() {
    return peak;
}

void forget_peak() {
    peak = in_use;
}

} // namespace vellora::test
