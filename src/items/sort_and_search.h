// Keeping the rows sorted, and finding one. The list view sorts and proposes candidates; what counts as found is
// decided here.
#pragma once

#include "control/core.h"
#include "runtime/variant.h"

#include <cstdint>

namespace vellora {

class SortAndSearch {
public:
    explicit SortAndSearch(ControlCore& core);

    bool Sorted() const;
    void put_Sorted(bool sorted);
    std::int32_t SortOrder() const;
    void put_SortOrder(std::int32_t order);
    /// 1-based. Error 380 outside 1 to Columns.
    std::int16_t SortColumn() const;
    void put_SortColumn(std::int16_t column);

    /// 0-based row, -1 for none. `SearchColumn` 0 means the text column; from 0 on only a cell equal to the target,
    /// case included, counts, under either option; below 0 the list view's first answer over all columns does.
    /// `StartIndex` is 1-based. Any error has "Vellora.FindItem" as source and its name before the description.
    std::int32_t FindItem(const VariantArgument& Target, std::int16_t SearchColumn, std::int32_t StartIndex,
                          std::int32_t FindOptions);

private:
    std::u16string search_text(const VariantArgument& target) const;
    std::int32_t find_anywhere(std::u16string_view target, std::int32_t start, bool partial) const;

    ControlCore& core_;
};

} // namespace vellora
