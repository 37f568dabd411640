#include "items/sort_and_search.h"

#include "runtime/procedure_label.h"
#include "runtime/host_error.h"

#include <algorithm>
#include <string>

namespace vellora {

SortAndSearch::SortAndSearch(ControlCore& core) : core_(core) {}

bool SortAndSearch::Sorted() const { return core_.state.mbSorted; }

void SortAndSearch::put_Sorted(bool sorted) {
    core_.state.mbSorted = sorted;
    ListRows& rows = core_.parts.ListView1.rows();
    rows.set_sorted(sorted);
    if (rows.count() > 0) {
        core_.state.mbListDirty = true;
    }
    core_.property_changed(u"Sorted");
}

std::int32_t SortAndSearch::SortOrder() const { return core_.state.mlSortOrder; }

void SortAndSearch::put_SortOrder(std::int32_t order) {
    core_.state.mlSortOrder = order;
    core_.parts.ListView1.rows().set_sort_order(order);
    core_.property_changed(u"SortOrder");
    core_.state.mbListDirty = core_.state.mbSorted;
}

std::int16_t SortAndSearch::SortColumn() const { return core_.state.miSortColumn; }

void SortAndSearch::put_SortColumn(std::int16_t column) {
    if (column < 1 || column > core_.state.miColumns) {
        throw HostError(error_number::invalid_property_value);
    }
    core_.state.miSortColumn = column;
    core_.parts.ListView1.rows().set_sort_column(column - 1);
    core_.property_changed(u"SortColumn");
    core_.state.mbListDirty = core_.state.mbSorted;
}

std::int32_t SortAndSearch::FindItem(const VariantArgument& Target, std::int16_t SearchColumn,
                                     std::int32_t StartIndex, std::int32_t FindOptions) {
    return labelled(u"Vellora.FindItem", [&] {
        if (core_.state.mbListDirty) {
            core_.parts.ListView1.refresh();
        }
        const std::u16string target = search_text(Target);
        const bool partial = FindOptions == vlPartialWord;
        const std::int32_t start = std::max(StartIndex, std::int32_t{0}) - 1;
        if (SearchColumn < 0) {
            return find_anywhere(target, start, partial);
        }
        const std::int32_t column = SearchColumn == 0 ? core_.state.miTextColumn : SearchColumn;
        return core_.parts.ListView1.rows().find_exact(target, column - 1, start, partial);
    });
}

std::u16string SortAndSearch::search_text(const VariantArgument& target) const {
    std::u16string scratch;
    return std::u16string(target.is_array() ? target.text_at(target.lower_bound(1), scratch)
                                            : target.text(scratch));
}

std::int32_t SortAndSearch::find_anywhere(std::u16string_view target, std::int32_t start, bool partial) const {
    const ListRows& rows = core_.parts.ListView1.rows();
    const std::int32_t row = rows.find(target, FindWhere::text, start, partial);
    return row >= 0 ? row : rows.find(target, FindWhere::sub_items, start, partial);
}

} // namespace vellora
