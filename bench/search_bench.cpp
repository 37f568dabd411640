#include "search_bench.h"

#include "stopwatch.h"
#include "widgets/list_rows.h"
#include "widgets/win32/locale_text_compare.h"

#include <algorithm>
#include <string>

namespace vellora::bench {

namespace {

constexpr int rows_searched = 100'000;
constexpr int searches = 1000;
constexpr double microseconds = 1000;

const Action nothing = [] {};

std::u16string_view units(const std::wstring& text) {
    return {reinterpret_cast<const char16_t*>(text.data()), text.size()};
}

void fill(ListRows& rows, SampleRows& samples) {
    for (std::int32_t row = 0; row < rows_searched; ++row) {
        const auto& texts = samples.texts(static_cast<std::size_t>(row));
        rows.append();
        rows.set_text(row, 0, units(texts[0]));
        rows.add_sub_item(row, units(texts[1]));
        rows.add_sub_item(row, units(texts[2]));
    }
}

/// The slowest of the keystrokes that type this text, each by its median, in microseconds.
double keystroke(const ListRows& rows, const std::wstring& typed, std::int32_t column) {
    double slowest = 0;
    for (std::size_t length = 1; length <= typed.size(); ++length) {
        const std::u16string_view prefix = units(typed).substr(0, length);
        slowest =
            std::max(slowest, median_time(9, nothing, [&] { rows.first_beginning_with(prefix, column); }));
    }
    return slowest * microseconds;
}

void report_memory(Report& report, const ListRows& rows) {
    const std::size_t before = memory_held();
    const double preparing = time_of([&] { rows.prepare_completion(0); });
    const std::size_t held = memory_held() - before;
    report.limit("memory, per row and column", static_cast<double>(held) / rows_searched, "B", 40);
    report.figure("once, as the field gets the focus", preparing, "ms");
}

} // namespace

void measure_completing(Report& report) {
    SampleRows samples(rows_searched);
    const win32::LocaleTextCompare compare;
    ListRows rows(compare);
    fill(rows, samples);
    report.heading("Completing among 100,000 rows, slowest key", "Vellora", "");
    report_memory(report, rows);
    report.limit("the match is the last row", keystroke(rows, L"item 099999", 0), "us", 1000);
    report.limit("no match, a common beginning", keystroke(rows, L"ITEM 0999999999", 0), "us", 1000);
    report.limit("no match at all", keystroke(rows, L"nothing of the kind", 0), "us", 1000);
    for (std::int32_t row = 0; row < 50'000; ++row)
        rows.set_text(row, 0, units(L"Another " + samples.texts(static_cast<std::size_t>(row))[0]));
    report.limit("half the rows match, from the middle on", keystroke(rows, L"Item 0", 0), "us", 1000);
    report.limit("another column, the last row", keystroke(rows, L"Code 099999", 2), "us", 1000);
}

void measure_finding(Report& report, VelloraList& list, NativeList& native) {
    SampleRows samples(rows_searched);
    native.clear();
    native.add(samples, rows_searched);
    report.heading("FindItem in 100,000 rows, of 1,000 calls", "Vellora", "native");
    const auto compare = [&](const std::string& what, const std::wstring& text, short column, bool partial) {
        const double theirs = median_time(3, nothing, [&] {
            column == 1 ? native.find(text, partial) : native.find_in_column(text, column - 1);
        });
        list.clear();
        list.add(samples, rows_searched);
        const double ours = time_of([&] {
            for (int i = 0; i < searches; ++i)
                list.find(text, column, partial);
        });
        report.compare(what, ours / searches, theirs, "ms", 0.01);
    };
    compare("text, the last row", L"item 099999", 1, false);
    compare("text, the last row, case as it is", L"Item 099999", 1, false);
    compare("text, none", L"none", 1, false);
    compare("text, partial, none", L"Item x", 1, true);
    compare("second column, the last row", L"Place 099999", 2, false);
    compare("third column, none", L"none", 3, false);
    compare("third column, partial, none", L"Code", 3, true);
    const double theirs = median_time(3, nothing, [&] { native.find(L"none", false); });
    const double ours = time_of([&] {
        for (short row = 0; row < searches; ++row) {
            list.write(static_cast<short>(row * 30), 3,
                       samples.texts(static_cast<std::size_t>(row))[2] + L"x");
            list.find(L"none", 3, false);
        }
    });
    report.compare("after a change of one row each time", ours / searches, theirs, "ms", 0.01);
    list.clear();
    native.clear();
}

void measure_adding_unknown(Report& report, VelloraList& list) {
    SampleRows samples(80'000);
    const auto per_row = [&](std::size_t count) {
        list.clear();
        const double time = time_of([&] {
            for (std::size_t row = 0; row < count; ++row)
                if (list.find(samples.texts(row)[0], 1, false) < 0)
                    list.add(samples.variant(row));
        });
        return time / static_cast<double>(count) * microseconds;
    };
    report.heading("FindItem, then AddItem where it is new", "80,000 rows", "20,000 rows");
    const double few = per_row(20'000);
    report.compare("time per row", per_row(80'000), few, "us", 2);
    list.clear();
}

} // namespace vellora::bench
