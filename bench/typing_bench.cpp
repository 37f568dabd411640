#include "typing_bench.h"

#include "stopwatch.h"

#include <algorithm>
#include <string>

namespace vellora::bench {

namespace {

constexpr int rows_completed_from = 100'000;
constexpr int runs = 15;
constexpr double microseconds = 1000;

/// The slowest of the keys that type this text, each by its median, in microseconds.
double keystroke(VelloraList& list, const std::wstring& text) {
    double slowest = 0;
    for (std::size_t length = 1; length <= text.size(); ++length) {
        const std::wstring before = text.substr(0, length - 1);
        const double time = median_time(
            runs, [&] { list.be_about_to_type(before); }, [&] { list.type(text[length - 1]); });
        slowest = std::max(slowest, time);
    }
    return slowest * microseconds;
}

} // namespace

void measure_typing(Report& report, VelloraList& list) {
    const SampleRows samples(rows_completed_from);
    const auto limit = [&](const std::string& what, const std::wstring& text) {
        report.limit(what, keystroke(list, text), "us", 1000);
    };
    report.heading("A key in the field, 100,000 rows, slowest", "Vellora", "");
    limit("without completion", L"Item 099999");
    list.add(samples, rows_completed_from);
    list.complete(true);
    limit("the match is the last row", L"item 099999");
    limit("no match, a common beginning", L"ITEM 0999999");
    limit("no match at all", L"nothing");
    list.complete(false);
    list.clear();
}

} // namespace vellora::bench
