#include "items/list_array.h"

#include "runtime/host_error.h"

#include <optional>

namespace vellora {

namespace {

struct Extent {
    std::int32_t lower = 0;
    std::int32_t upper = 0;
};

Extent extent_of(const VariantArgument& array, int dimension) {
    return {array.lower_bound(dimension), array.upper_bound(dimension)};
}

std::optional<Extent> second_extent_of(const VariantArgument& array) {
    try {
        return extent_of(array, 2);
    } catch (const HostError&) {
        return std::nullopt;
    }
}

std::int32_t row_to_write(ListRows& rows, std::int32_t index) {
    if (index >= rows.count()) {
        rows.append();
        return rows.count() - 1;
    }
    return index;
}

void write_sub_item(ListRows& rows, std::int32_t row, std::int32_t column, std::u16string_view text) {
    if (column > rows.sub_item_count(row)) {
        rows.add_sub_item(row, text);
    } else if (column < 1) {
        throw HostError(error_number::index_out_of_bounds);
    } else {
        rows.set_text(row, column, text);
    }
}

/// `cell(r, c, scratch)` reads the element for row r and column c, whichever dimension each of them is.
template <typename Cell>
void write_table(ListRows& rows, Extent row_extent, Extent column_extent, Cell cell) {
    std::u16string scratch;
    for (std::int64_t index = row_extent.lower; index <= row_extent.upper; ++index) {
        const auto r = static_cast<std::int32_t>(index);
        const std::int32_t row = row_to_write(rows, r);
        rows.set_text(row, 0, cell(r, column_extent.lower, scratch));
        for (std::int64_t c = std::int64_t{column_extent.lower} + 1; c <= column_extent.upper; ++c) {
            const auto column = static_cast<std::int32_t>(c);
            write_sub_item(rows, row, column, cell(r, column, scratch));
        }
    }
}

template <typename Place>
TextTable read_table(const ListRows& rows, std::int32_t first_row, std::int32_t columns, TextTable table,
                     Place place) {
    const std::int32_t count = rows.count() - first_row;
    table.cells.resize(static_cast<std::size_t>(count) * static_cast<std::size_t>(columns));
    for (std::int32_t row = 0; row < count; ++row) {
        for (std::int32_t column = 0; column < columns; ++column) {
            table.cells[static_cast<std::size_t>(place(row, column))] = rows.text(first_row + row, column);
        }
    }
    return table;
}

} // namespace

std::vector<std::u16string> read_row(const ListRows& rows, std::int32_t row, std::int32_t columns) {
    std::vector<std::u16string> cells;
    cells.reserve(static_cast<std::size_t>(columns));
    for (std::int32_t column = 0; column < columns; ++column) {
        cells.emplace_back(rows.text(row, column));
    }
    return cells;
}

TextTable read_rows_first(const ListRows& rows, std::int32_t first_row, std::int32_t columns) {
    const std::int32_t count = rows.count() - first_row;
    return read_table(rows, first_row, columns, {count, columns, {}},
                      [columns](std::int32_t row, std::int32_t column) { return row * columns + column; });
}

TextTable read_columns_first(const ListRows& rows, std::int32_t first_row, std::int32_t columns) {
    const std::int32_t count = rows.count() - first_row;
    return read_table(rows, first_row, columns, {columns, count, {}},
                      [count](std::int32_t row, std::int32_t column) { return column * count + row; });
}

void write_rows_first(ListRows& rows, const VariantArgument& array) {
    const Extent row_extent = extent_of(array, 1);
    if (const auto column_extent = second_extent_of(array)) {
        write_table(rows, row_extent, *column_extent,
                    [&array](std::int32_t row, std::int32_t column, std::u16string& scratch) {
                        return array.text_at(row, column, scratch);
                    });
        return;
    }
    write_table(rows, row_extent, {},
                [&array](std::int32_t row, std::int32_t, std::u16string& scratch) {
                    return array.text_at(row, scratch);
                });
}

void write_columns_first(ListRows& rows, const VariantArgument& array) {
    const Extent column_extent = extent_of(array, 1);
    if (const auto row_extent = second_extent_of(array)) {
        write_table(rows, *row_extent, column_extent,
                    [&array](std::int32_t row, std::int32_t column, std::u16string& scratch) {
                        return array.text_at(column, row, scratch);
                    });
    }
}

} // namespace vellora
