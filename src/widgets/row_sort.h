// Sorting rows by the text of one column: one key per row, made once, then a stable sort over the keys.
#pragma once

#include "runtime/text_compare.h"
#include "widgets/row_store.h"

#include <cstdint>
#include <vector>

namespace vellora {

/// The slots of the rows in sorted order; rows with equal texts keep theirs, descending as well. A missing
/// cell counts as empty.
std::vector<std::uint32_t> sorted_order(const RowStore& rows, std::int32_t column, bool descending,
                                        const TextCompare& compare);

} // namespace vellora
