// The rows in the order of one column's texts, case folded away, so that those which equal or begin with a
// text stand together.
#pragma once

#include "runtime/text_compare.h"
#include "widgets/keyed_slots.h"
#include "widgets/row_changes.h"
#include "widgets/row_store.h"
#include "widgets/text_matcher.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace vellora {

/// Four bytes per row: it holds slots, and reads texts and positions where they are. It goes by the rows that
/// did not change since it was made or last brought up to date; whoever keeps it notes the changed ones, and
/// passes the same notes every time.
class TextIndex {
public:
    /// O(n log n). Rows without that cell are left out. Throws std::bad_alloc.
    TextIndex(const RowStore& rows, std::uint32_t column, const TextCompare& compare);

    /// Takes c changed rows in: O(n + c log n). Throws std::bad_alloc; the index is of no use then.
    void take_in(const RowStore& rows, const RowChanges& changes, const TextCompare& compare);

    /// The slots whose texts match, with changed rows among them: O(log n) as long as few have changed.
    std::span<const std::uint32_t> range(const RowStore& rows, const RowChanges& changes,
                                         const TextMatcher& matcher) const;

    /// Whether all rows that did not change have that cell.
    bool complete() const { return complete_; }

private:
    std::u16string_view text(const RowStore& rows, std::uint32_t slot) const {
        return rows.table().at(slot).texts.at(column_);
    }
    void add_changed(KeyedSlots& keys, const RowStore& rows, const RowChanges& changes,
                     const TextCompare& compare) const;
    void merge(const RowStore& rows, const KeyedSlots& added, const TextCompare& compare);

    std::uint32_t column_;
    bool complete_;
    std::vector<std::uint32_t> slots_;
};

} // namespace vellora
