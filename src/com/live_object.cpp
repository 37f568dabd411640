#include "com/live_object.h"

#include <atomic>

namespace vellora::com {

namespace {

std::atomic<long> uses = 0;

} // namespace

LiveObject::LiveObject() noexcept {
    ++uses;
}

LiveObject::~LiveObject() {
    --uses;
}

void lock_library(bool lock) noexcept {
    uses += lock ? 1 : -1;
}

bool library_in_use() noexcept {
    return uses != 0;
}

} // namespace vellora::com
