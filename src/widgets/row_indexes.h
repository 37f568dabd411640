// The indexes of a list's columns: made once a column is searched again and again, kept in step with the
// rows, given up when too many rows change. Without them every search goes from row to row, and finds the
// same.
#pragma once

#include "runtime/text_compare.h"
#include "widgets/row_changes.h"
#include "widgets/row_store.h"
#include "widgets/slot_set.h"
#include "widgets/text_index.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace vellora {

/// Nothing here throws but for what it says: an index for which there is no memory does not come about.
class RowIndexes {
public:
    /// Columns from this one on have none.
    static constexpr std::uint32_t most_columns = 64;

    RowIndexes(const RowStore& rows, const TextCompare& compare) : rows_(rows), compare_(compare) {}

    /// The row in this slot was added, removed or got another text. O(1).
    void note(std::uint32_t slot) noexcept;
    /// Gives all memory back.
    void clear() noexcept;

    /// At the start of each search: takes the changed rows in once they are many. In the mean, O(log n) per
    /// changed row and index.
    void begin_search() noexcept;
    /// The column's index, null where it has none. One is made, at most one per search, `at_once` or after as
    /// many rows were passed one by one as there are: making it takes about as long as adding the rows did.
    const TextIndex* find(std::uint32_t column, bool at_once) noexcept;
    /// So many rows were passed one by one for want of the column's index.
    void passed(std::uint32_t column, std::size_t rows) noexcept;

    /// The rows by which no index goes.
    const RowChanges& changes() const { return changes_; }
    /// For use within one search; empty, and to be left so.
    SlotSet& scratch() { return scratch_; }

private:
    struct Column {
        std::size_t passed = 0;
        std::unique_ptr<TextIndex> index;
    };

    void make(std::uint32_t column) noexcept;
    void take_changes_in() noexcept;

    const RowStore& rows_;
    const TextCompare& compare_;
    std::vector<Column> columns_;
    RowChanges changes_;
    SlotSet scratch_;
    bool may_make_ = false;
};

} // namespace vellora
