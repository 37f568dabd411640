// The column headers of a list: their captions, tags, widths and icons. Columns are counted from 0 here and
// widths are pixels; a column that does not exist raises 35600.
#pragma once

#include "widgets/win32/list_window.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vellora::win32 {

/// Place of the image of a header without icon.
inline constexpr int no_image = -1;

class ListHeaders {
public:
    explicit ListHeaders(const ListWindow& window) : window_(window) {}

    std::int32_t count() const { return static_cast<std::int32_t>(headers_.size()); }
    /// Raises 35600 now rather than after something else was done for the column.
    void require(std::int32_t column) const { at(column); }
    void clear();
    void add(std::u16string_view text, int width);

    const std::u16string& text(std::int32_t column) const { return at(column).text; }
    void set_text(std::int32_t column, std::u16string_view text);
    const std::u16string& tag(std::int32_t column) const { return at(column).tag; }
    void set_tag(std::int32_t column, std::u16string_view tag) { at(column).tag = tag; }
    /// The key of the column's icon, and its place in the image list the icons are drawn from.
    const std::u16string& icon(std::int32_t column) const { return at(column).icon; }
    void set_icon(std::int32_t column, std::u16string_view key, int image);
    /// The list stays the caller's, who keeps it until another one is given.
    void draw_icons_from(HIMAGELIST images);
    int width(std::int32_t column) const;
    void set_width(std::int32_t column, int width);

    /// The window got, changed or lost a column by somebody else's message.
    void inserted(std::int32_t column, std::u16string text);
    void renamed(std::int32_t column, std::u16string text);
    void removed(std::int32_t column);

private:
    struct Header {
        std::u16string text;
        std::u16string tag;
        std::u16string icon;
        int image = no_image;
    };
    const Header& at(std::int32_t column) const;
    Header& at(std::int32_t column);
    void show_image(std::int32_t column) const;
    LRESULT header_message(UINT message, std::int32_t column, HDITEMW* item) const;

    const ListWindow& window_;
    std::vector<Header> headers_;
};

} // namespace vellora::win32
