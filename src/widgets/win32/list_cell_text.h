// Texts on their way between the rows and messages that carry a buffer of wide or of narrow characters.
#pragma once

#include "widgets/list_rows.h"

#include <windows.h>

#include <string>
#include <string_view>

namespace vellora::win32 {

/// Whether the row exists.
bool has_row(const ListRows& rows, std::int32_t row);
/// Followed by a zero unit; empty for a cell that does not exist.
std::u16string_view cell_text(const ListRows& rows, std::int32_t row, std::int32_t column);
/// Adds the sub-items that a row lacks before the column. False when there is no such row, or when the column
/// lies outside the row and outside the `columns` of the list.
bool write_cell(ListRows& rows, std::int32_t row, std::int32_t column, std::int32_t columns,
                std::u16string_view text);

/// Copies up to the first zero unit, cuts to the buffer's capacity and ends with a zero. Returns the number
/// of characters before it; a missing buffer takes nothing.
int copy_text(std::u16string_view text, wchar_t* buffer, int capacity);
int copy_text(std::u16string_view text, char* buffer, int capacity);

/// A null pointer is an empty text.
std::u16string text_of(const wchar_t* text);
std::u16string text_of(const char* text);

/// Whether a message's pointer can point at something: null and the first pages never do.
template <typename Structure>
Structure* structure_at(LPARAM lparam) {
    constexpr auto lowest_address = 0x10000;
    return static_cast<ULONG_PTR>(lparam) < lowest_address ? nullptr : reinterpret_cast<Structure*>(lparam);
}

} // namespace vellora::win32
