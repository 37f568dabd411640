// The rows as the public interface sees them: added, read, written and removed by 0-based index.
#pragma once

#include "control/core.h"
#include "runtime/variant.h"

#include <cstdint>
#include <string_view>

namespace vellora {

class ColumnSet;
class ControlObject;

/// Special values of List's second argument.
namespace text_col {
inline constexpr std::int16_t text_column = -1;   // the column TextColumn names
inline constexpr std::int16_t whole_row = -2;     // one row as an array of its columns
inline constexpr std::int16_t rows_first = -3;    // all rows from an index on, (row, column)
inline constexpr std::int16_t columns_first = -4; // the same as (column, row)
} // namespace text_col

/// Error 381 for a row that is not there; a cell that is not there raises the list view's 35600.
class ItemStore {
public:
    ItemStore(ControlCore& core, ControlObject& object, ColumnSet& columns);

    /// A scalar fills the first column, an array the columns in order; what goes beyond Columns is left out. Index -1
    /// appends. Error 6 for Index 32767, 9 for an array without element 0; the row stays, empty, when its texts
    /// cannot be read.
    void AddItem(const VariantArgument& Item, std::int16_t Index);
    /// Error 0x800405F0 for a column that is neither used nor one of the special values.
    VariantResult List(std::int16_t ItemIndex, std::int16_t TextCol) const;
    /// Grows the list, filled with single spaces, until the row exists. What was written before an error stays.
    void put_List(std::int16_t ItemIndex, std::int16_t TextCol, const VariantArgument& value);
    void RemoveItem(std::int16_t ItemIndex);
    void Clear();
    /// Also gives up the columns, down to one without caption or width.
    void ClearAll();

    std::int32_t ListCount() const;
    /// Where the row added last stands now, -1 once any row was removed or that row is gone.
    std::int32_t NewIndex() const;

    /// A number kept with the row, 0 for one that never got any.
    std::int32_t ItemData(std::int16_t ItemIndex);
    void put_ItemData(std::int16_t ItemIndex, std::int32_t value);

    bool ShowItemToolTips() const;
    /// Concerns rows added from now on.
    void put_ShowItemToolTips(bool show);

private:
    ListRows& rows() const { return core_.parts.ListView1.rows(); }
    void check_row(std::int32_t ItemIndex) const;
    [[noreturn]] void raise_invalid_column() const;
    void fill_row(std::int32_t row, const VariantArgument& item);
    void set_first_text(std::int32_t row, std::u16string_view text);
    void add_further_text(std::int32_t row, std::u16string_view text);
    void grow_to(std::int32_t ItemIndex);
    void write_cell(std::int32_t row, std::int16_t TextCol, const VariantArgument& value);
    void empty_text();

    ControlCore& core_;
    ControlObject& object_;
    ColumnSet& columns_;
};

} // namespace vellora
