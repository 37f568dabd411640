#include "widgets/win32/list_headers.h"

#include "runtime/host_error.h"
#include "widgets/win32/wide_text.h"

#include <algorithm>
#include <utility>

namespace vellora::win32 {

namespace {

constexpr int widest_column = 0x7FFF; // the message carries 16 bits

LVCOLUMNW caption_column(std::u16string& text) {
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT;
    column.pszText = wide(text);
    return column;
}

} // namespace

const ListHeaders::Header& ListHeaders::at(std::int32_t column) const {
    if (column < 0 || column >= count())
        throw HostError(error_number::index_out_of_bounds);
    return headers_[static_cast<std::size_t>(column)];
}

ListHeaders::Header& ListHeaders::at(std::int32_t column) {
    return const_cast<Header&>(std::as_const(*this).at(column));
}

void ListHeaders::clear() {
    while (!headers_.empty()) {
        headers_.pop_back();
        window_.native(LVM_DELETECOLUMN, headers_.size());
    }
}

void ListHeaders::add(std::u16string_view text, int width) {
    Header& header = headers_.emplace_back(Header{std::u16string(text), {}});
    LVCOLUMNW column = caption_column(header.text);
    column.mask |= LVCF_WIDTH | LVCF_SUBITEM;
    column.cx = width;
    column.iSubItem = count() - 1;
    window_.native(LVM_INSERTCOLUMNW, static_cast<WPARAM>(count() - 1), &column);
}

void ListHeaders::set_text(std::int32_t column, std::u16string_view text) {
    Header& header = at(column);
    header.text = text;
    const LVCOLUMNW changed = caption_column(header.text);
    window_.native(LVM_SETCOLUMNW, static_cast<WPARAM>(column), &changed);
}

int ListHeaders::width(std::int32_t column) const {
    at(column);
    return static_cast<int>(window_.native(LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column)));
}

void ListHeaders::set_width(std::int32_t column, int width) {
    at(column);
    window_.native(LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(column),
                   MAKELPARAM(std::clamp(width, 0, widest_column), 0));
}

void ListHeaders::inserted(std::int32_t column, std::u16string text) {
    const auto place = std::clamp<std::ptrdiff_t>(column, 0, count());
    headers_.insert(headers_.begin() + place, Header{std::move(text), {}});
}

void ListHeaders::renamed(std::int32_t column, std::u16string text) {
    at(column).text = std::move(text);
}

void ListHeaders::removed(std::int32_t column) {
    at(column);
    headers_.erase(headers_.begin() + column);
}

} // namespace vellora::win32
