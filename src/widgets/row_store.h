// Rows in their order: which slot of the table stands at which position, and the arenas their texts lie in.
// Checks nothing and tells nobody; `ListRows` does both.
#pragma once

#include "widgets/row_table.h"
#include "widgets/text_arena.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace vellora {

/// What allocates throws std::bad_alloc and leaves the rows as they were.
class RowStore {
public:
    std::int32_t count() const { return static_cast<std::int32_t>(order_.size()); }
    std::uint32_t slot(std::int32_t row) const { return order_[static_cast<std::size_t>(row)]; }
    RowRecord& record(std::int32_t row) const { return table_.at(slot(row)); }
    const RowTable& table() const { return table_; }
    /// No row has more cells than this.
    std::uint32_t most_cells() const { return most_cells_; }

    void insert(std::int32_t row);
    void remove(std::int32_t row) noexcept;
    void clear() noexcept;

    /// The row in a slot that is in use: O(1) but for one pass over the rows after so many of them were
    /// moved.
    std::int32_t position(std::uint32_t slot) const;
    const std::vector<std::uint32_t>& order() const { return order_; }
    void set_order(std::vector<std::uint32_t> order) noexcept;
    /// The rows that stand at these positions now were taken out of the others' midst and put in elsewhere.
    void set_order(std::vector<std::uint32_t> order, std::span<const std::int32_t> moved) noexcept;

    void set_text(std::int32_t row, std::uint32_t cell, std::u16string_view text);
    void add_text(std::int32_t row, std::u16string_view text);
    void set_tool_tip(std::int32_t row, std::uint32_t cell, std::u16string_view tip);

    /// Counts the changes of texts and of the number of rows.
    std::uint64_t revision() const { return revision_; }

private:
    using Texts = PackedTexts RowRecord::*;
    void changed(std::int32_t row) { table_.stamp(slot(row), ++revision_); }
    void tidy(TextArena& arena, Texts texts) noexcept;
    void shifted(std::size_t rows) { shifts_ = std::min(shifts_ + rows, unknown_shifts); }
    std::int32_t found_near(std::uint32_t slot, std::int32_t row) const;
    void renumber() const;

    static constexpr std::size_t unknown_shifts = 256;

    RowTable table_;
    std::vector<std::uint32_t> order_;
    mutable std::size_t shifts_ = 0; // no row stands further from where it was last seen
    std::uint32_t most_cells_ = 1;
    TextArena texts_;
    TextArena tool_tips_; // apart: a row that gains texts and tips by turns then grows both in place
    std::uint64_t revision_ = 0;
};

/// The text of a cell, empty where the row has no such cell.
std::u16string_view cell_text(const RowRecord& record, std::int32_t column);

} // namespace vellora
