#include "sort_bench.h"

#include "stopwatch.h"
#include "widgets/list_rows.h"
#include "widgets/win32/locale_text_compare.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace vellora::bench {

namespace {

constexpr std::int32_t rows_sorted = 100'000;
constexpr int look_ups = 10'000;

using Texts = std::vector<std::u16string>;

/// All different, in no order.
Texts mixed_texts(const std::wstring& word) {
    Texts texts;
    for (std::int32_t row = 0; row < rows_sorted; ++row) {
        const std::wstring text = word + std::to_wstring(1'000'000 + std::int64_t{row} * 7919 % rows_sorted);
        texts.emplace_back(text.begin(), text.end());
    }
    return texts;
}

void fill(ListRows& rows, const Texts& texts) {
    for (std::int32_t row = 0; row < rows_sorted; ++row) {
        rows.append();
        rows.set_text(row, 0, texts[static_cast<std::size_t>(row)]);
    }
}

/// What a program would do by itself: a key for each text, then a stable sort of their numbers by the keys.
void sort_by_keys(const Texts& texts, const TextCompare& compare) {
    std::vector<std::pair<std::u16string, std::uint32_t>> keyed;
    keyed.reserve(texts.size());
    for (std::uint32_t row = 0; row < texts.size(); ++row)
        keyed.emplace_back(compare.sort_key(texts[row]), row);
    std::stable_sort(keyed.begin(), keyed.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
}

void compare_whole(Report& report, const std::string& what, const Texts& texts, const TextCompare& compare) {
    std::optional<ListRows> rows;
    const auto prepare = [&] {
        rows.emplace(compare);
        fill(*rows, texts);
    };
    const Pair times = median_times(
        7, prepare, [&] { rows->set_sorted(true); }, [&] { sort_by_keys(texts, compare); });
    report.compare(what, times.first, times.second, "ms", 1);
}

} // namespace

void measure_sorting(Report& report) {
    const win32::LocaleTextCompare compare;
    report.heading("Sorting 100,000 rows, keys made", "Vellora", "stable_sort");
    compare_whole(report, "short texts", mixed_texts(L""), compare);
    const Texts texts = mixed_texts(L"Item ");
    compare_whole(report, "texts that begin alike", texts, compare);

    ListRows rows(compare);
    fill(rows, texts);
    const double whole = time_of([&] { rows.set_sorted(true); });
    report.heading("Sorting again", "Vellora", "all rows");
    const double added = median_time(
        15,
        [&] {
            rows.append();
            rows.set_text(rows.count() - 1, 0, u"Item 1050000");
        },
        [&] { rows.refresh(); });
    report.compare("one row was added", added, whole, "ms", 0.1);
    std::int32_t row = 0;
    const double changed = median_time(
        15, [&] { rows.set_text(row += 5000, 0, u"Item 1070000"); }, [&] { rows.refresh(); });
    report.compare("one text was changed", changed, whole, "ms", 0.1);
}

void measure_looking_up(Report& report, VelloraList& list, VelloraList& short_list, const SampleRows& rows) {
    const auto time = [&](auto&& look_up) {
        return Action([&look_up] {
            for (int i = 0; i < look_ups; ++i)
                look_up();
        });
    };
    list.add(rows, rows_sorted);
    short_list.add(rows, 10);
    list.select(9);
    short_list.select(9);
    const Action nothing = [] {};
    report.heading("Looking a row up, 10,000 times", "100,000 rows", "10 rows");
    const auto long_new = [&] { list.new_index(); };
    const auto short_new = [&] { short_list.new_index(); };
    const Pair added = median_times(9, nothing, time(long_new), time(short_new));
    report.compare("NewIndex", added.first, added.second, "ms", 1.2);
    const auto long_selected = [&] { list.list_index(); };
    const auto short_selected = [&] { short_list.list_index(); };
    const Pair selected = median_times(9, nothing, time(long_selected), time(short_selected));
    report.compare("ListIndex", selected.first, selected.second, "ms", 1.2);
    list.clear();
    short_list.clear();
}

} // namespace vellora::bench
