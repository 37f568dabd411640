#include "check_bench.h"

#include "stopwatch.h"

#include <commctrl.h>

namespace vellora::bench {

namespace {

constexpr int rows_checked = 100'000;
constexpr short rows_by_code = 32767; // Checked takes an Integer
constexpr UINT checked_image = 2;

void check_all(HWND list, bool checked) {
    LVITEMW item{};
    item.state = INDEXTOSTATEIMAGEMASK(checked ? checked_image : 1U);
    item.stateMask = LVIS_STATEIMAGEMASK;
    SendMessageW(list, LVM_SETITEMSTATE, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&item));
}

int checked_rows(HWND list) {
    int count = 0;
    for (WPARAM row = 0; row < rows_checked; ++row) {
        const auto state = static_cast<UINT>(SendMessageW(list, LVM_GETITEMSTATE, row, LVIS_STATEIMAGEMASK));
        count += state == INDEXTOSTATEIMAGEMASK(checked_image) ? 1 : 0;
    }
    return count;
}

} // namespace

void measure_checking(Report& report, VelloraList& list, NativeList& native, SampleRows& rows) {
    list.add(rows, rows_checked);
    native.add(rows, rows_checked);
    SendMessageW(native.window(), LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_CHECKBOXES, LVS_EX_CHECKBOXES);
    report.heading("Check boxes of 100,000 rows", "Vellora", "native");
    const double ours = median_time(
        5, [&] { check_all(list.list_window(), false); }, [&] { check_all(list.list_window(), true); });
    const double theirs = time_of([&] { check_all(native.window(), true); }); // takes seconds
    report.compare("checking them at once", ours, theirs, "ms", 1);
    const Pair counted = median_times(
        5, [] {}, [&] { list.checked_count(); }, [&] { checked_rows(native.window()); });
    report.compare("counting them", counted.first, counted.second, "ms", 1);
    report.figure("CheckedItems",
                  median_time(
                      5, [] {}, [&] { list.checked_items(); }),
                  "ms");
    const double by_code = median_time(
        3, [&] { check_all(list.list_window(), false); },
        [&] {
            for (short row = 0; row < rows_by_code; ++row)
                list.check_row(row);
        });
    report.figure("Checked, 32,767 rows one by one", by_code, "ms");
    SendMessageW(native.window(), LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_CHECKBOXES, 0);
    list.clear();
    native.clear();
}

} // namespace vellora::bench
