#include "items/item_store.h"

#include "columns/column_set.h"
#include "control/control_object.h"
#include "items/list_array.h"
#include "runtime/checked.h"
#include "runtime/host_error.h"

#include <string>

namespace vellora {

namespace {

constexpr std::u16string_view invalid_column_text = u"Invalid Column ItemIndex";
// Cells that only exist because a row further down was written. A single space, not nothing: forms rely on it.
constexpr std::u16string_view filler = u" ";
constexpr std::int16_t append = -1;

} // namespace

ItemStore::ItemStore(ControlCore& core, ControlObject& object, ColumnSet& columns)
    : core_(core), object_(object), columns_(columns) {}

void ItemStore::AddItem(const VariantArgument& Item, std::int16_t Index) {
    const std::int32_t row =
        Index == append ? rows().count() : checked_add(Index, std::int16_t{1}) - 1;
    const RowRef added = rows().insert(row);
    fill_row(row, Item);
    core_.state.moNewItem = added;
    core_.state.mbListDirty = core_.state.mbSorted;
}

void ItemStore::fill_row(std::int32_t row, const VariantArgument& item) {
    std::u16string scratch;
    if (!item.is_array()) {
        set_first_text(row, item.text(scratch));
        return;
    }
    set_first_text(row, item.text_at(0, scratch));
    const std::int32_t last = item.upper_bound(1);
    for (std::int32_t column = 1; column < core_.state.miColumns && column <= last; ++column) {
        add_further_text(row, item.text_at(column, scratch));
    }
}

void ItemStore::set_first_text(std::int32_t row, std::u16string_view text) {
    rows().set_text(row, 0, text);
    if (core_.state.mbShowItemToolTips) {
        rows().set_tool_tip(row, 0, text);
    }
}

void ItemStore::add_further_text(std::int32_t row, std::u16string_view text) {
    rows().add_sub_item(row, text);
    if (core_.state.mbShowItemToolTips) {
        rows().set_tool_tip(row, rows().sub_item_count(row), text);
    }
}

VariantResult ItemStore::List(std::int16_t ItemIndex, std::int16_t TextCol) const {
    check_row(ItemIndex);
    const std::int32_t columns = core_.state.miColumns;
    switch (TextCol) {
    case text_col::text_column:
        return std::u16string(rows().text(ItemIndex, core_.state.miTextColumn - 1));
    case text_col::whole_row:
        return read_row(rows(), ItemIndex, columns);
    case text_col::rows_first:
        return read_rows_first(rows(), ItemIndex, columns);
    case text_col::columns_first:
        return read_columns_first(rows(), ItemIndex, columns);
    default:
        if (TextCol < 1 || TextCol > columns) {
            raise_invalid_column();
        }
        return std::u16string(rows().text(ItemIndex, TextCol - 1));
    }
}

void ItemStore::put_List(std::int16_t ItemIndex, std::int16_t TextCol, const VariantArgument& value) {
    grow_to(ItemIndex);
    if (ItemIndex < 0) {
        throw HostError(error_number::invalid_property_array_index);
    }
    if (!value.is_array()) {
        write_cell(ItemIndex, TextCol, value);
    } else if (TextCol == text_col::rows_first) {
        write_rows_first(rows(), value);
    } else {
        write_columns_first(rows(), value);
    }
    core_.state.mbListDirty = core_.state.mbSorted;
}

void ItemStore::grow_to(std::int32_t ItemIndex) {
    while (rows().count() < ItemIndex + 1) {
        const std::int32_t row = rows().count();
        rows().append();
        rows().set_text(row, 0, filler);
        for (std::int16_t column = 1; column < core_.state.miColumns; ++column) {
            rows().add_sub_item(row, filler);
        }
    }
}

void ItemStore::write_cell(std::int32_t row, std::int16_t TextCol, const VariantArgument& value) {
    const std::int16_t column = TextCol == text_col::text_column ? core_.state.miTextColumn : TextCol;
    if (TextCol != text_col::text_column && (TextCol < 1 || TextCol > core_.state.miColumns)) {
        raise_invalid_column();
    }
    std::u16string scratch;
    rows().set_text(row, column - 1, value.text(scratch));
}

void ItemStore::RemoveItem(std::int16_t ItemIndex) {
    check_row(ItemIndex);
    rows().remove(ItemIndex);
    core_.state.moNewItem = {};
    if (core_.state.mlListIndex == ItemIndex) {
        core_.live_text_box().set_text({});
    }
    core_.state.mbListDirty = true;
}

void ItemStore::Clear() {
    rows().clear();
    empty_text();
}

void ItemStore::ClearAll() {
    rows().clear();
    if (core_.state.mbTerminating) {
        return;
    }
    std::int16_t first_column = 1;
    subResetColumns(core_.state, first_column);
    columns_.put_Columns(1);
    columns_.rebuild_headers();
    empty_text();
}

void ItemStore::empty_text() {
    object_.write_text_silently({});
    core_.state.mbListDirty = false;
}

std::int32_t ItemStore::ListCount() const { return rows().count(); }

std::int32_t ItemStore::NewIndex() const { return rows().position(core_.state.moNewItem); }

std::int32_t ItemStore::ItemData(std::int16_t ItemIndex) {
    check_row(ItemIndex);
    if (core_.state.mbListDirty) {
        core_.parts.ListView1.refresh();
    }
    return rows().tag(ItemIndex).value_or(0);
}

void ItemStore::put_ItemData(std::int16_t ItemIndex, std::int32_t value) {
    check_row(ItemIndex);
    rows().set_tag(ItemIndex, value);
    core_.property_changed(u"ItemData");
}

bool ItemStore::ShowItemToolTips() const { return core_.state.mbShowItemToolTips; }

void ItemStore::put_ShowItemToolTips(bool show) {
    core_.state.mbShowItemToolTips = show;
    core_.property_changed(u"ShowItemToolTips");
}

void ItemStore::check_row(std::int32_t ItemIndex) const {
    if (ItemIndex < 0 || ItemIndex >= rows().count()) {
        throw HostError(error_number::invalid_property_array_index);
    }
}

void ItemStore::raise_invalid_column() const {
    core_.raise(error_number::invalid_column_index, invalid_column_text);
}

} // namespace vellora
