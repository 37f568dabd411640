// Rows and their texts; order, selection and search are in list_rows_order.cpp.
#include "widgets/list_rows.h"

#include "widgets/list_rows_store.h"

#include <utility>

namespace vellora {

ListRows::ListRows(const TextCompare& compare) : store_(std::make_unique<Store>(compare)) {}

ListRows::~ListRows() = default;

void ListRows::observe(RowsObserver* observer) {
    store_->observer = observer;
}

std::int32_t ListRows::count() const {
    return store_->rows.count();
}

RowRef ListRows::append() {
    return insert(count());
}

RowRef ListRows::insert(std::int32_t row) {
    if (row < 0 || row > count())
        throw HostError(error_number::index_out_of_bounds);
    store_->rows.insert(row);
    store_->note(store_->rows.slot(row));
    if (store_->selected >= row)
        ++store_->selected;
    const RowRef added = ref(row);
    store_->report_rows();
    return added;
}

void ListRows::remove(std::int32_t row) {
    store_->record(row);
    const bool was_selected = store_->selected == row;
    const std::uint32_t slot = store_->rows.slot(row);
    store_->rows.remove(row);
    store_->note(slot);
    if (was_selected)
        store_->selected = -1;
    else if (store_->selected > row)
        --store_->selected;
    store_->report_rows();
    if (was_selected)
        store_->report_selection();
}

void ListRows::clear() {
    if (count() == 0)
        return;
    const bool had_selection = store_->selected >= 0;
    store_->rows.clear();
    store_->note_clear();
    store_->selected = -1;
    store_->report_rows();
    if (had_selection)
        store_->report_selection();
}

std::int32_t ListRows::position(RowRef ref) const {
    const RowRecord* record = store_->rows.table().find(ref.slot, ref.generation);
    return record ? store_->rows.position(ref.slot) : -1;
}

RowRef ListRows::ref(std::int32_t row) const {
    const RowRecord& record = store_->record(row);
    return {store_->rows.slot(row), record.generation};
}

std::u16string_view ListRows::text(std::int32_t row, std::int32_t column) const {
    return store_->record(row).texts.at(store_->cell(row, column));
}

void ListRows::set_text(std::int32_t row, std::int32_t column, std::u16string_view text) {
    const std::uint32_t cell = store_->cell(row, column);
    if (store_->rows.record(row).texts.at(cell) == text)
        return;
    store_->rows.set_text(row, cell, text);
    store_->note(store_->rows.slot(row));
    store_->report_row(row);
}

std::int32_t ListRows::sub_item_count(std::int32_t row) const {
    return static_cast<std::int32_t>(store_->record(row).texts.count()) - 1;
}

void ListRows::add_sub_item(std::int32_t row, std::u16string_view text) {
    store_->record(row);
    store_->rows.add_text(row, text);
    store_->note(store_->rows.slot(row));
    store_->report_row(row);
}

std::u16string_view ListRows::tool_tip(std::int32_t row, std::int32_t column) const {
    const PackedTexts& tips = store_->record(row).tool_tips;
    const bool set = column >= 0 && static_cast<std::uint32_t>(column) < tips.count();
    return set ? tips.at(static_cast<std::uint32_t>(column)) : std::u16string_view(u"");
}

void ListRows::set_tool_tip(std::int32_t row, std::int32_t column, std::u16string_view tip) {
    store_->rows.set_tool_tip(row, store_->cell(row, column), tip);
}

std::optional<std::int32_t> ListRows::tag(std::int32_t row) const {
    const RowRecord& record = store_->record(row);
    return record.has_tag ? std::optional(record.tag) : std::nullopt;
}

void ListRows::set_tag(std::int32_t row, std::int32_t value) {
    RowRecord& record = store_->record(row);
    record.tag = value;
    record.has_tag = true;
}

bool ListRows::checked(std::int32_t row) const {
    return store_->record(row).checked;
}

void ListRows::set_checked(std::int32_t row, bool checked) {
    RowRecord& record = store_->record(row);
    if (record.checked == checked)
        return;
    record.checked = checked;
    store_->report_row(row);
}

std::uint64_t ListRows::revision() const {
    return store_->rows.revision();
}

void ListRows::set_interval(std::uint64_t revisions, std::function<void()> callback) {
    store_->interval = revisions;
    store_->next_interval = revision() + revisions;
    store_->at_interval = std::move(callback);
}

void ListRows::visit_texts(std::int32_t column, std::uint64_t since, const TextVisitor& visit) const {
    const auto cell = static_cast<std::uint32_t>(column);
    store_->rows.table().visit_stamped(since, [&](std::uint32_t slot, const RowRecord& record) {
        if (cell < record.texts.count())
            visit({slot, record.generation}, record.texts.at(cell));
    });
}

} // namespace vellora
