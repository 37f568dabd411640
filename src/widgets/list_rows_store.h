// The state behind `ListRows`: the rows and what is remembered about them. Shared by its source files only.
#pragma once

#include "runtime/host_error.h"
#include "widgets/list_rows.h"
#include "widgets/row_changes.h"
#include "widgets/row_indexes.h"
#include "widgets/row_sort.h"
#include "widgets/row_store.h"

namespace vellora {

struct SortSettings {
    bool sorted = false;
    SortOrder order = SortOrder::ascending;
    std::int32_t column = 0;
    bool operator==(const SortSettings&) const = default;
};

struct ListRows::Store {
    explicit Store(const TextCompare& text_compare) : compare(text_compare), indexes(rows, text_compare) {}

    const TextCompare& compare;
    RowStore rows;
    RowIndexes indexes;
    SortBy sorted_by;      // how the rows were sorted last
    RowChanges since_sort; // what was changed then; not noting: too much, or never sorted
    RowsObserver* observer = nullptr;
    std::int32_t selected = -1;
    SortSettings sort;
    std::uint64_t interval = 0;
    std::uint64_t next_interval = 0;
    std::function<void()> at_interval;

    RowRecord& record(std::int32_t row) const {
        if (row < 0 || row >= rows.count())
            throw HostError(error_number::index_out_of_bounds);
        return rows.record(row);
    }
    bool has_cell(std::int32_t row, std::int32_t column) const {
        return column >= 0 && static_cast<std::uint32_t>(column) < record(row).texts.count();
    }
    std::uint32_t cell(std::int32_t row, std::int32_t column) const {
        if (!has_cell(row, column))
            throw HostError(error_number::index_out_of_bounds);
        return static_cast<std::uint32_t>(column);
    }

    /// After every change of a row's texts or of the number of rows; before it is reported.
    void note(std::uint32_t slot) noexcept;
    /// The same where all rows have gone.
    void note_clear() noexcept;

    void report_rows() {
        count_interval();
        if (observer)
            observer->rows_changed();
    }
    void report_row(std::int32_t row) {
        count_interval();
        if (observer)
            observer->row_changed(row);
    }
    void count_interval() {
        if (!at_interval || rows.revision() < next_interval)
            return;
        next_interval = rows.revision() + interval;
        at_interval();
    }
    void report_selection() {
        if (observer)
            observer->selection_changed();
    }

    /// Takes the settings over and sorts where they say so.
    void arrange(const SortSettings& settings);
    /// Whether any row moved.
    bool sort_rows(const SortBy& by);
    void set_sort(const SortSettings& settings) {
        if (settings != sort)
            arrange(settings);
    }
};

} // namespace vellora
