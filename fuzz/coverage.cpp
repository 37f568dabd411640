// The compiler calls the function below in every basic block of the code it instruments. This file itself is
// built without any instrumentation.
#include "coverage.h"

#include <algorithm>

namespace {

std::array<std::uint8_t, vellora::fuzz::Coverage::places> counts;
bool counting = false;
std::uintptr_t previous = 0;

/// 1, 2, 3, 4 to 7, 8 to 15, 16 to 31, 32 to 127 and more: one bit each.
std::uint8_t magnitude(std::uint8_t count) {
    constexpr std::array<std::uint8_t, 7> starts{1, 2, 3, 4, 8, 16, 32};
    if (count >= 128) {
        return 0x80;
    }
    const auto above = std::ranges::upper_bound(starts, count) - starts.begin();
    return above == 0 ? std::uint8_t{0} : static_cast<std::uint8_t>(1U << (above - 1));
}

} // namespace

extern "C" void __sanitizer_cov_trace_pc();
extern "C" void __sanitizer_cov_trace_pc() {
    if (!counting) {
        return;
    }
    // Relative to this function, so that a place has one number wherever the program is loaded.
    const auto here = reinterpret_cast<std::uintptr_t>(__builtin_return_address(0)) -
                      reinterpret_cast<std::uintptr_t>(&__sanitizer_cov_trace_pc);
    std::uint8_t& count = counts[(here ^ previous) % counts.size()];
    count = static_cast<std::uint8_t>(count + (count < 255 ? 1 : 0));
    previous = here >> 1;
}

namespace vellora::fuzz {

void Coverage::start() {
    counts.fill(0);
    previous = 0;
    counting = true;
}

void Coverage::stop() {
    counting = false;
}

bool Coverage::is_new() {
    bool found = false;
    for (std::size_t place = 0; place < places; ++place) {
        if (counts[place] == 0) {
            continue;
        }
        const std::uint8_t now = magnitude(counts[place]);
        if ((now & ~seen_[place]) != 0) {
            seen_places_ += seen_[place] == 0 ? 1 : 0;
            seen_[place] = static_cast<std::uint8_t>(seen_[place] | now);
            found = true;
        }
    }
    return found;
}

} // namespace vellora::fuzz
