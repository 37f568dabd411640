#include "com/live_object.h"

#include <atomic>

namespace vellora::com {

namespace {

// One sum, so that a single look at it tells whether the library is needed.
std::atomic<long> uses = 0;
std::atomic<long> locks = 0;

} // namespace

LiveObject::LiveObject() noexcept {
    ++uses;
}

LiveObject::~LiveObject() {
    --uses;
}

void lock_library(bool lock) noexcept {
    if (lock) {
        ++uses;
        ++locks;
        return;
    }
    // There may be more unlocks than locks.
    for (long held = locks; held > 0;) {
        if (locks.compare_exchange_weak(held, held - 1)) {
            --uses;
            return;
        }
    }
}

bool library_in_use() noexcept {
    return uses != 0;
}

} // namespace vellora::com
