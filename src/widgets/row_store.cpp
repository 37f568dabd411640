#include "widgets/row_store.h"

#include <new>

namespace vellora {

void RowStore::insert(std::int32_t row) {
    const std::uint32_t slot = table_.acquire();
    try {
        order_.insert(order_.begin() + row, slot);
    } catch (...) {
        table_.release(slot);
        throw;
    }
    table_.at(slot).position = row;
    if (row + 1 < count())
        shifted(1);
    changed(row);
}

void RowStore::remove(std::int32_t row) noexcept {
    RowRecord& gone = record(row);
    gone.texts.release(texts_);
    gone.tool_tips.release(tool_tips_);
    table_.release(slot(row));
    order_.erase(order_.begin() + row);
    if (row < count())
        shifted(1);
    ++revision_;
    if (order_.empty())
        return clear();
    tidy(texts_, &RowRecord::texts);
    tidy(tool_tips_, &RowRecord::tool_tips);
}

void RowStore::clear() noexcept {
    std::vector<std::uint32_t>().swap(order_);
    table_.clear();
    texts_.clear();
    tool_tips_.clear();
    shifts_ = 0;
    most_cells_ = 1;
    ++revision_;
}

std::int32_t RowStore::position(std::uint32_t slot_of_row) const {
    std::int32_t& noted = table_.at(slot_of_row).position;
    if (noted < count() && slot(noted) == slot_of_row)
        return noted;
    if (shifts_ >= unknown_shifts)
        renumber();
    else
        noted = found_near(slot_of_row, noted);
    return noted;
}

std::int32_t RowStore::found_near(std::uint32_t slot_of_row, std::int32_t row) const {
    const auto shifts = static_cast<std::int32_t>(shifts_);
    const auto first = order_.begin() + std::clamp(row - shifts, std::int32_t{0}, count());
    return static_cast<std::int32_t>(std::find(first, order_.end(), slot_of_row) - order_.begin());
}

void RowStore::renumber() const {
    for (std::int32_t row = 0; row < count(); ++row)
        record(row).position = row;
    shifts_ = 0;
}

void RowStore::set_order(std::vector<std::uint32_t> order) noexcept {
    order_.swap(order);
    shifts_ = unknown_shifts;
}

void RowStore::set_order(std::vector<std::uint32_t> order, std::span<const std::int32_t> moved) noexcept {
    order_.swap(order);
    for (const std::int32_t row : moved)
        record(row).position = row;
    shifted(moved.size());
}

void RowStore::set_text(std::int32_t row, std::uint32_t cell, std::u16string_view text) {
    record(row).texts.replace(cell, text, texts_);
    changed(row);
    tidy(texts_, &RowRecord::texts);
}

void RowStore::add_text(std::int32_t row, std::u16string_view text) {
    PackedTexts& texts = record(row).texts;
    texts.append(text, texts_);
    most_cells_ = std::max(most_cells_, texts.count());
    changed(row);
    tidy(texts_, &RowRecord::texts);
}

void RowStore::set_tool_tip(std::int32_t row, std::uint32_t cell, std::u16string_view tip) {
    PackedTexts& tips = record(row).tool_tips;
    if (cell >= tips.count() && tip.empty())
        return;
    while (tips.count() < cell)
        tips.append({}, tool_tips_);
    if (tips.count() == cell)
        tips.append(tip, tool_tips_);
    else
        tips.replace(cell, tip, tool_tips_);
    tidy(tool_tips_, &RowRecord::tool_tips);
}

void RowStore::tidy(TextArena& arena, Texts texts) noexcept {
    if (!arena.wasteful())
        return;
    try {
        TextArena::Compaction compaction(arena);
        for (std::int32_t row = 0; row < count(); ++row)
            (record(row).*texts).move(compaction);
        compaction.finish();
    } catch (const std::bad_alloc&) {
        // The texts stay readable where they are; it is tried again once more space has died.
        return;
    }
}

std::u16string_view cell_text(const RowRecord& record, std::int32_t column) {
    const auto cell = static_cast<std::uint32_t>(column);
    return cell < record.texts.count() ? record.texts.at(cell) : std::u16string_view(u"");
}

} // namespace vellora
