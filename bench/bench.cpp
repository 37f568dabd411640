// Measures the control beside the platform's own list, both filled with the same rows in the same process,
// and says which bounds are met. Arguments name the subjects, all without. The exit code is 1 when a bound is missed.
#include "check_bench.h"
#include "native_list.h"
#include "report.h"
#include "sample_rows.h"
#include "search_bench.h"
#include "sort_bench.h"
#include "stopwatch.h"
#include "typing_bench.h"
#include "vellora_list.h"

#include <algorithm>
#include <cstdio>
#include <ole2.h>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace vellora::bench {

namespace {

constexpr int ten_thousand = 10'000;
constexpr int hundred_thousand = 100'000;
constexpr int million = 1'000'000;

struct Bench {
    test::Container container;
    SampleRows rows;
    Report report;
    VelloraList list{container, L"Vellora1", 20};
    VelloraList short_list{container, L"Vellora2", 260};
    NativeList native;

    double vellora_fill(int runs, int count) {
        return median_time(
            runs, [this] { list.clear(); }, [=, this] { list.add(rows, count); });
    }
    double dispatch_fill(int runs, int count) {
        return median_time(
            runs, [this] { list.clear(); }, [=, this] { list.add_by_dispatch(rows, count); });
    }
    double native_fill(int runs, int count) {
        return median_time(
            runs, [this] { native.clear(); }, [=, this] { native.add(rows, count); });
    }

    void memory();
    struct Bounds {
        std::optional<double> interface_ratio;
        std::optional<double> dispatch_ratio;
    };
    void adding();
    void add(int count, const std::string& what, const Bounds& bounds);
    void linearity();
    void clearing();
    void reading();
    void opening(bool auto_size);
};

/// Comes first and keeps both lists full to its end: memory that was held before would be used again unseen.
void Bench::memory() {
    const std::size_t before = memory_held();
    list.add(rows, hundred_thousand);
    const std::size_t between = memory_held();
    native.add(rows, hundred_thousand);
    const std::size_t after = memory_held();
    const double ours = static_cast<double>(between - before) / hundred_thousand;
    const double theirs = static_cast<double>(after - between) / hundred_thousand;
    report.heading("Memory per row of three short texts", "Vellora", "native");
    report.compare("100,000 rows", ours, theirs, "B");
    report.limit("", ours, "B", 160);
    list.clear();
    native.clear();
}

void Bench::adding() {
    report.heading("AddItem, an array of three texts", "Vellora", "native");
    add(1'000, "1,000 rows", {});
    add(ten_thousand, "10,000 rows", Bounds{0.3, 0.7});
    add(hundred_thousand, "100,000 rows", {});
}

void Bench::add(int count, const std::string& what, const Bounds& bounds) {
    const int runs = count == hundred_thousand ? 5 : 15;
    const double theirs = native_fill(runs, count);
    report.compare(what + ", interface", vellora_fill(runs, count), theirs, "ms", bounds.interface_ratio);
    report.compare(what + ", IDispatch", dispatch_fill(runs, count), theirs, "ms", bounds.dispatch_ratio);
}

void Bench::linearity() {
    report.heading("AddItem, time per row", "1,000,000 rows", "100,000 rows");
    constexpr double microseconds = 1000;
    const double few = vellora_fill(5, hundred_thousand) / hundred_thousand * microseconds;
    const double many = vellora_fill(3, million) / million * microseconds;
    report.compare("interface", many, few, "us", 1.3);
    list.clear();
}

void Bench::clearing() {
    report.heading("Clear", "Vellora", "native");
    const double ours = median_time(
        5, [this] { list.add(rows, hundred_thousand); }, [this] { list.clear(); });
    const double theirs = median_time(
        3, [this] { native.add(rows, hundred_thousand); }, [this] { native.clear(); });
    report.compare("100,000 rows", ours, theirs, "ms", 0.1);
}

void Bench::reading() {
    report.heading("List, each text of 10,000 rows", "Vellora", "native");
    list.add(rows, ten_thousand);
    native.clear();
    native.add(rows, ten_thousand);
    const Action nothing = [] {};
    const double theirs = median_time(5, nothing, [this] { native.read(ten_thousand); });
    report.compare("interface", median_time(5, nothing, [this] { list.read(ten_thousand); }), theirs, "ms");
    report.compare("IDispatch", median_time(5, nothing, [this] { list.read_by_dispatch(ten_thousand); }),
                   theirs, "ms");
    list.clear();
    native.clear();
}

void Bench::opening(bool auto_size) {
    report.heading(auto_size ? "ShowList and HideList, AutoSize 1" : "ShowList and HideList, no AutoSize",
                   "100,000 rows", "10 rows");
    const auto open_long = [this] { list.open_and_close(); };
    const auto open_short = [this] { short_list.open_and_close(); };
    const auto fill = [this] {
        list.clear();
        list.add(rows, hundred_thousand);
        short_list.clear();
        short_list.add(rows, 10);
    };
    list.auto_size(auto_size);
    short_list.auto_size(auto_size);
    const Pair first = median_times(9, fill, open_long, open_short);
    report.compare("the first time after filling", first.first, first.second, "ms", 1.2);
    const Pair again = median_times(
        25, [] {}, open_long, open_short);
    report.compare("again", again.first, again.second, "ms", 1.2);
    list.clear();
    short_list.clear();
}

struct Subject {
    std::string_view name;
    void (*measure)(Bench& bench);
};

constexpr Subject subjects[] = {
    {"memory", [](Bench& bench) { bench.memory(); }},
    {"adding", [](Bench& bench) { bench.adding(); }},
    {"linearity", [](Bench& bench) { bench.linearity(); }},
    {"clearing", [](Bench& bench) { bench.clearing(); }},
    {"reading", [](Bench& bench) { bench.reading(); }},
    {"completing", [](Bench& bench) { measure_completing(bench.report); }},
    {"typing", [](Bench& bench) { measure_typing(bench.report, bench.list, bench.short_list); }},
    {"finding", [](Bench& bench) { measure_finding(bench.report, bench.list, bench.native); }},
    {"adding-unknown", [](Bench& bench) { measure_adding_unknown(bench.report, bench.list); }},
    {"sorting", [](Bench& bench) { measure_sorting(bench.report); }},
    {"looking-up",
     [](Bench& bench) { measure_looking_up(bench.report, bench.list, bench.short_list, bench.rows); }},
    {"checking", [](Bench& bench) { measure_checking(bench.report, bench.list, bench.native, bench.rows); }},
    {"opening",
     [](Bench& bench) {
         bench.opening(false);
         bench.opening(true);
     }},
};

void refuse_unknown(std::span<const std::string_view> names) {
    for (const std::string_view name : names)
        if (std::ranges::find(subjects, name, &Subject::name) == std::end(subjects))
            throw std::invalid_argument("bench measures nothing called \"" + std::string(name) + '"');
}

/// The subjects named, or all of them; in an order in which none spoils the next.
int run(std::span<const std::string_view> names) {
    refuse_unknown(names);
    Bench bench;
    for (const Subject& subject : subjects)
        if (names.empty() || std::ranges::find(names, subject.name) != names.end())
            subject.measure(bench);
    std::printf("\n%s\n", bench.report.all_met() ? "All bounds are met." : "Not all bounds are met.");
    return bench.report.all_met() ? 0 : 1;
}

} // namespace

} // namespace vellora::bench

int main(int count, char** arguments) {
    if (FAILED(OleInitialize(nullptr)))
        return 2;
    int code = 2;
    try {
        code = vellora::bench::run(std::vector<std::string_view>(arguments + 1, arguments + count));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
    }
    OleUninitialize();
    return code;
}
