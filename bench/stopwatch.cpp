#include "stopwatch.h"

#include <algorithm>
#include <chrono>
#include <vector>
#include <windows.h>

#include <psapi.h>

namespace vellora::bench {

namespace {

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace

double time_of(const Action& action) {
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

double median_time(int runs, const Action& prepare, const Action& action) {
    std::vector<double> times;
    for (int run = 0; run < runs; ++run) {
        prepare();
        times.push_back(time_of(action));
    }
    return median(times);
}

Pair median_times(int runs, const Action& prepare, const Action& first, const Action& second) {
    std::vector<double> first_times;
    std::vector<double> second_times;
    for (int run = 0; run < runs; ++run) {
        prepare();
        first_times.push_back(time_of(first));
        second_times.push_back(time_of(second));
    }
    return {median(first_times), median(second_times)};
}

std::size_t memory_held() {
    PROCESS_MEMORY_COUNTERS_EX counters{};
    GetProcessMemoryInfo(GetCurrentProcess(), reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&counters),
                         sizeof counters);
    return std::max(counters.PrivateUsage, counters.WorkingSetSize);
}

} // namespace vellora::bench
