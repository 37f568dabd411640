// Time and memory of this process.
#pragma once

#include <cstddef>
#include <functional>

namespace vellora::bench {

using Action = std::function<void()>;

/// Milliseconds that one run of the action takes.
double time_of(const Action& action);
/// The median over several runs, each of them prepared outside of the measured time.
double median_time(int runs, const Action& prepare, const Action& action);
/// The medians of two actions that take turns, so that both meet the same moods of the machine.
struct Pair {
    double first;
    double second;
};
Pair median_times(int runs, const Action& prepare, const Action& first, const Action& second);

/// Bytes of memory the process holds. The larger of private bytes and working set, since not every system
/// that runs this counts the private ones.
std::size_t memory_held();

} // namespace vellora::bench
