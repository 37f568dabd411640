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
    Header& header = headers_.emplace_back();
    header.text = text;
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
    show_image(column);
}

void ListHeaders::set_icon(std::int32_t column, std::u16string_view key, int image) {
    Header& header = at(column);
    header.icon = key;
    header.image = image;
    show_image(column);
}

// The icons are the header's alone: an image list of the rows would make room for icons in them.
void ListHeaders::draw_icons_from(HIMAGELIST images) {
    SendMessageW(window_.header(), HDM_SETIMAGELIST, HDSIL_NORMAL, reinterpret_cast<LPARAM>(images));
}

// The window forgets the image when it gets a caption.
void ListHeaders::show_image(std::int32_t column) const {
    const int image = at(column).image;
    HDITEMW item{};
    item.mask = HDI_FORMAT | HDI_IMAGE;
    header_message(HDM_GETITEMW, column, &item);
    const bool shows = (item.fmt & HDF_IMAGE) != 0;
    if (shows ? item.iImage == image : image == no_image)
        return;
    item.fmt = image == no_image ? item.fmt & ~HDF_IMAGE : item.fmt | HDF_IMAGE;
    item.iImage = std::max(image, 0);
    header_message(HDM_SETITEMW, column, &item);
}

LRESULT ListHeaders::header_message(UINT message, std::int32_t column, HDITEMW* item) const {
    return SendMessageW(window_.header(), message, static_cast<WPARAM>(column),
                        reinterpret_cast<LPARAM>(item));
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
    headers_.emplace(headers_.begin() + place)->text = std::move(text);
}

void ListHeaders::renamed(std::int32_t column, std::u16string text) {
    at(column).text = std::move(text);
    show_image(column);
}

void ListHeaders::removed(std::int32_t column) {
    at(column);
    headers_.erase(headers_.begin() + column);
}

} // namespace vellora::win32
