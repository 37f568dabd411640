// Sorting rows by the text of one column: all of them by one key each, made once, or only those that changed
// since they were sorted in the same way, into the midst of the others.
#pragma once

#include "runtime/text_compare.h"
#include "widgets/row_changes.h"
#include "widgets/row_store.h"

#include <cstdint>
#include <vector>

namespace vellora {

struct SortBy {
    std::int32_t column = 0;
    bool descending = false;
    bool operator==(const SortBy&) const = default;
};

/// The slots of the rows in sorted order; rows with equal texts keep theirs, descending as well. A missing
/// cell counts as empty. O(n log n), with n keys made. Throws std::bad_alloc.
std::vector<std::uint32_t> sorted_order(const RowStore& rows, const SortBy& by, const TextCompare& compare);

struct MendedOrder {
    std::vector<std::uint32_t> order;
    std::vector<std::int32_t> moved; // where the changed rows stand in it
};

/// The same order, for rows that were sorted so and of which only these c have changed since: a pass over the
/// order, with O(c log n) keys made. Throws std::bad_alloc.
MendedOrder mended_order(const RowStore& rows, const RowChanges& changes, const SortBy& by,
                         const TextCompare& compare);

} // namespace vellora
