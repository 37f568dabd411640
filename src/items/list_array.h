// Whole rows as arrays: what List hands out and takes in beyond single cells.
#pragma once

#include "runtime/variant.h"
#include "widgets/list_rows.h"

#include <cstdint>
#include <string>
#include <vector>

namespace vellora {

/// The first `columns` cells of one row, or of every row from `first_row` on. A missing cell raises 35600.
std::vector<std::u16string> read_row(const ListRows& rows, std::int32_t row, std::int32_t columns);
TextTable read_rows_first(const ListRows& rows, std::int32_t first_row, std::int32_t columns);
TextTable read_columns_first(const ListRows& rows, std::int32_t first_row, std::int32_t columns);

/// Writes an array by its own indexes: element (r, c) into row r, or at the end when there is no such row, and there
/// into sub-item c, which is added when it is missing; the lower bound of the columns stands for the row's text. A
/// one-dimensional array is a single column.
void write_rows_first(ListRows& rows, const VariantArgument& array);
/// The same with the dimensions exchanged, (c, r). A one-dimensional array writes nothing.
void write_columns_first(ListRows& rows, const VariantArgument& array);

} // namespace vellora
