// Selecting, sorting and finding rows.
#include "widgets/list_rows_store.h"
#include "widgets/row_search.h"
#include "widgets/row_sort.h"

#include <limits>
#include <utility>
#include <vector>

namespace vellora {

namespace {

/// Putting so many rows into the midst of the others takes no longer than sorting all.
std::size_t most_mended(const RowStore& rows) {
    return rows.order().size() / 16 + 1;
}

constexpr ColumnRange all_sub_items{1, std::numeric_limits<std::uint32_t>::max()};

} // namespace

void ListRows::Store::note(std::uint32_t slot) noexcept {
    if (rows.count() == 0)
        return note_clear();
    indexes.note(slot);
    since_sort.note(slot, most_mended(rows));
}

void ListRows::Store::note_clear() noexcept {
    indexes.clear();
    since_sort.stop();
}

void ListRows::Store::arrange(const SortSettings& settings) {
    const SortBy by{settings.column, settings.order == SortOrder::descending};
    const std::uint32_t selected_slot = selected < 0 ? 0 : rows.slot(selected);
    const bool moved = settings.sorted && sort_rows(by);
    sort = settings;
    if (!moved)
        return;
    if (selected >= 0)
        selected = rows.position(selected_slot);
    report_rows();
}

bool ListRows::Store::sort_rows(const SortBy& by) {
    const bool mends =
        since_sort.noting() && sorted_by == by && since_sort.slots().size() <= most_mended(rows);
    if (mends && since_sort.slots().empty())
        return false;
    MendedOrder sorted;
    if (mends)
        sorted = mended_order(rows, since_sort, by, compare);
    else
        sorted.order = sorted_order(rows, by, compare);
    const bool moved = sorted.order != rows.order();
    if (moved && mends)
        rows.set_order(std::move(sorted.order), sorted.moved);
    else if (moved)
        rows.set_order(std::move(sorted.order));
    sorted_by = by;
    since_sort.start();
    return moved;
}

std::int32_t ListRows::selected() const {
    return store_->selected;
}

void ListRows::select(std::int32_t row) {
    if (row != -1)
        store_->record(row);
    if (store_->selected == row)
        return;
    store_->selected = row;
    store_->report_selection();
}

bool ListRows::sorted() const {
    return store_->sort.sorted;
}
SortOrder ListRows::sort_order() const {
    return store_->sort.order;
}
std::int32_t ListRows::sort_column() const {
    return store_->sort.column;
}

void ListRows::set_sorted(bool sorted) {
    SortSettings wanted = store_->sort;
    wanted.sorted = sorted;
    store_->set_sort(wanted);
}

void ListRows::set_sort_order(std::int32_t order) {
    SortSettings wanted = store_->sort;
    const bool descending = order == static_cast<std::int32_t>(SortOrder::descending);
    wanted.order = descending ? SortOrder::descending : SortOrder::ascending;
    store_->set_sort(wanted);
}

void ListRows::set_sort_column(std::int32_t column) {
    if (column < 0)
        throw HostError(error_number::invalid_property_value);
    SortSettings wanted = store_->sort;
    wanted.column = column;
    store_->set_sort(wanted);
}

void ListRows::refresh() {
    store_->arrange(store_->sort);
}

std::int32_t ListRows::find(std::u16string_view target, FindWhere where, std::int32_t start,
                            bool partial) const {
    if (count() == 0)
        return -1;
    store_->record(start);
    const ColumnRange columns = where == FindWhere::text ? ColumnRange{0, 1} : all_sub_items;
    RowSearch search(store_->rows, store_->indexes);
    return search.first(TextMatcher(target, partial, store_->compare), columns, start);
}

std::int32_t ListRows::find_exact(std::u16string_view target, std::int32_t column, std::int32_t start,
                                  bool partial) const {
    if (count() == 0)
        return -1;
    store_->record(start);
    const auto cell = static_cast<std::uint32_t>(column);
    RowSearch search(store_->rows, store_->indexes);
    const std::int32_t row =
        search.first_exact(target, TextMatcher(target, false, store_->compare), cell, start);
    const std::int32_t end = row < 0 ? count() : row;
    if (cell > 0 && search.any_without(cell, TextMatcher(target, partial, store_->compare), start, end))
        throw HostError(error_number::index_out_of_bounds);
    return row;
}

std::int32_t ListRows::first_beginning_with(std::u16string_view target, std::int32_t column) const {
    if (column < 0 || count() == 0)
        return -1;
    const auto cell = static_cast<std::uint32_t>(column);
    RowSearch search(store_->rows, store_->indexes, true);
    return search.first(TextMatcher(target, true, store_->compare), {cell, cell + 1}, 0);
}

void ListRows::prepare_completion(std::int32_t column) const {
    if (column >= 0) {
        store_->indexes.begin_search();
        store_->indexes.find(static_cast<std::uint32_t>(column), true);
    }
}

} // namespace vellora
