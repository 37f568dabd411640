// Finding a row by its text, case ignored: by the indexes of the columns where there are any, else from row
// to row.
#pragma once

#include "widgets/row_indexes.h"
#include "widgets/row_store.h"
#include "widgets/text_matcher.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace vellora {

/// Columns from `first` up to but not including `last`.
struct ColumnRange {
    std::uint32_t first;
    std::uint32_t last;
};

/// One search. With indexes it takes O(log n) where few rows match, and otherwise a pass over the order of
/// the rows without a look at their texts; without them it takes a look at every row.
class RowSearch {
public:
    /// `at_once`: an index is worth making at the first search already.
    RowSearch(const RowStore& rows, RowIndexes& indexes, bool at_once = false);

    /// The first row from `start` on with a matching cell in these columns; -1 for none.
    std::int32_t first(const TextMatcher& matcher, ColumnRange columns, std::int32_t start);
    /// The first one whose cell in this column is the very text, case included. The matcher has to match that
    /// text.
    std::int32_t first_exact(std::u16string_view text, const TextMatcher& matcher, std::uint32_t column,
                             std::int32_t start);
    /// Whether a row from `start` on and before `end` has a matching sub-item, but no cell in this column.
    bool any_without(std::uint32_t column, const TextMatcher& matcher, std::int32_t start, std::int32_t end);

private:
    struct Quest;

    /// These answer the quest's end for none.
    std::int32_t run(Quest quest);
    std::int32_t pass(const Quest& quest, std::uint64_t open) const;
    std::int32_t pass_by_indexes(const Quest& quest, std::uint64_t& open);
    std::int32_t first_changed(Quest quest) const;
    std::int32_t first_of(std::span<const std::uint32_t> slots, const Quest& quest);
    std::int32_t first_of_few(std::span<const std::uint32_t> slots, Quest quest) const;
    std::int32_t first_of_many(std::span<const std::uint32_t> slots, Quest quest);

    void count_passed(const Quest& quest, std::uint64_t open, std::int32_t end) noexcept;
    bool all_have(std::uint32_t column) noexcept;

    const RowStore& rows_;
    RowIndexes& indexes_;
    bool at_once_;
};

} // namespace vellora
