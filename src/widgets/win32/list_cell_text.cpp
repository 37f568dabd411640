#include "widgets/win32/list_cell_text.h"

#include "widgets/win32/wide_text.h"

#include <algorithm>

namespace vellora::win32 {

namespace {

// A default text stands for "ask the owner", which these rows never do.
bool is_readable(const void* text) {
    return structure_at<const void>(reinterpret_cast<LPARAM>(text)) != nullptr &&
           reinterpret_cast<LPARAM>(text) != -1;
}

std::u16string_view before_zero(std::u16string_view text) {
    return text.substr(0, text.find(u'\0'));
}

} // namespace

bool has_row(const ListRows& rows, std::int32_t row) {
    return row >= 0 && row < rows.count();
}

std::u16string_view cell_text(const ListRows& rows, std::int32_t row, std::int32_t column) {
    constexpr std::u16string_view empty = u"";
    if (!has_row(rows, row) || column < 0 || column > rows.sub_item_count(row))
        return empty;
    const std::u16string_view text = rows.text(row, column);
    return text.empty() ? empty : text;
}

bool write_cell(ListRows& rows, std::int32_t row, std::int32_t column, std::int32_t columns,
                std::u16string_view text) {
    if (!has_row(rows, row) || column < 0)
        return false;
    if (column > rows.sub_item_count(row) && column >= columns)
        return false;
    while (rows.sub_item_count(row) < column)
        rows.add_sub_item(row, {});
    rows.set_text(row, column, text);
    return true;
}

int copy_text(std::u16string_view text, wchar_t* buffer, int capacity) {
    if (!is_readable(buffer) || capacity <= 0)
        return 0;
    const std::u16string_view source = before_zero(text).substr(0, static_cast<std::size_t>(capacity) - 1);
    std::copy(source.begin(), source.end(), buffer);
    buffer[source.size()] = L'\0';
    return static_cast<int>(source.size());
}

int copy_text(std::u16string_view text, char* buffer, int capacity) {
    if (!is_readable(buffer) || capacity <= 0)
        return 0;
    // A unit takes at least one character: whatever lies behind the capacity cannot fit.
    const std::u16string_view source = before_zero(text).substr(0, static_cast<std::size_t>(capacity) - 1);
    const int length = static_cast<int>(source.size());
    const int needed =
        WideCharToMultiByte(CP_ACP, 0, wide(source.data()), length, nullptr, 0, nullptr, nullptr);
    std::string narrow(static_cast<std::size_t>(needed), '\0');
    WideCharToMultiByte(CP_ACP, 0, wide(source.data()), length, narrow.data(), needed, nullptr, nullptr);
    const int copied = std::min(needed, capacity - 1);
    std::copy_n(narrow.data(), copied, buffer);
    buffer[copied] = '\0';
    return copied;
}

std::u16string text_of(const wchar_t* text) {
    return is_readable(text) ? from_wide(text) : std::u16string();
}

std::u16string text_of(const char* text) {
    if (!is_readable(text))
        return {};
    const int needed = MultiByteToWideChar(CP_ACP, 0, text, -1, nullptr, 0);
    std::u16string result(static_cast<std::size_t>(std::max(needed, 1)), u'\0');
    MultiByteToWideChar(CP_ACP, 0, text, -1, wide(result), needed);
    result.pop_back();
    return result;
}

} // namespace vellora::win32
