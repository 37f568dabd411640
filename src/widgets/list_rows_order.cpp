// Selecting, sorting and finding rows.
#include "widgets/list_rows_store.h"
#include "widgets/row_search.h"
#include "widgets/row_sort.h"

#include <utility>
#include <vector>

namespace vellora {

void ListRows::Store::arrange(const SortSettings& settings) {
    if (!settings.sorted) {
        sort = settings;
        return;
    }
    std::vector<std::uint32_t> order =
        sorted_order(rows, settings.column, settings.order == SortOrder::descending, compare);
    sort = settings;
    if (order == rows.order())
        return;
    const std::uint32_t selected_slot = selected < 0 ? 0 : rows.slot(selected);
    rows.set_order(std::move(order));
    if (selected >= 0)
        selected = rows.position(selected_slot);
    report_rows();
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
    return find_row(store_->rows, TextMatcher(target, partial, store_->compare), where, start);
}

std::int32_t ListRows::first_beginning_with(std::u16string_view target, std::int32_t column) const {
    if (column < 0)
        return -1;
    const TextMatcher begins(target, true, store_->compare);
    return find_in_column(store_->rows, begins, static_cast<std::uint32_t>(column));
}

} // namespace vellora
