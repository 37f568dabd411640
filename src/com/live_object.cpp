#include "com/live_object.h"

#include <atomic>

namespace vellora::com {

namespace {

std::atomic<long> objects = 0;
std::atomic<long> locks = 0;

} // namespace

LiveObject::LiveObject() noexcept {
    ++objects;
}

LiveObject::~LiveObject() {
    --objects;
}

void lock_library(bool lock) noexcept {
    if (lock) {
        ++locks;
        return;
    }
    // There may be more unlocks than locks.
    long held = locks;
    while (held > 0 && !locks.compare_exchange_weak(held, held - 1)) {
    }
}

bool library_in_use() noexcept {
    return objects != 0 || locks != 0;
}

} // namespace vellora::com
