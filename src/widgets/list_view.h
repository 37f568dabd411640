// The report-style list of the drop-down: rows, column headers and what the user does with them.
#pragma once

#include "widgets/font.h"
#include "widgets/image_list.h"
#include "widgets/list_rows.h"
#include "widgets/widget.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace vellora {

class ListViewListener {
public:
    /// A click into the list, also on its blank area.
    virtual void list_clicked() = 0;
    /// 1-based index of the header; its place in the collection, not on the screen.
    virtual void list_column_clicked(std::int32_t column) = 0;
    /// The user changed a row's check box; the flag holds the new state already.
    virtual void list_item_checked(std::int32_t row) = 0;
    virtual void list_key_down(std::int16_t& key_code, std::int16_t shift) = 0;
    virtual void list_key_press(std::int16_t& key_ascii) = 0;

protected:
    ~ListViewListener() = default;
};

/// Columns are 1-based here, widths twips. A header that does not exist raises 35600.
class ListView : public Widget {
public:
    virtual void listen(ListViewListener* listener) = 0;

    virtual ListRows& rows() = 0;
    /// Sorts where sorting is on and brings the window up to date.
    virtual void refresh() = 0;
    /// Scrolls until the row (0-based) is in view. Error 35600 for a row that does not exist.
    virtual void ensure_visible(std::int32_t row) = 0;
    /// Height of a row in twips.
    virtual float row_height() const = 0;

    virtual std::int32_t header_count() const = 0;
    virtual void clear_headers() = 0;
    virtual void add_header(std::u16string_view text) = 0;
    virtual std::u16string header_text(std::int32_t column) const = 0;
    virtual void set_header_text(std::int32_t column, std::u16string_view text) = 0;
    virtual float header_width(std::int32_t column) const = 0;
    /// Error 380 for a negative width.
    virtual void set_header_width(std::int32_t column, float width) = 0;
    virtual std::u16string header_tag(std::int32_t column) const = 0;
    virtual void set_header_tag(std::int32_t column, std::u16string_view tag) = 0;
    /// Null for none. The rows get no icons of it. Texts and widths of the headers stay; headers with an icon
    /// show the image that the new list has under the same key.
    virtual ImageListRef column_header_icons() const = 0;
    virtual void set_column_header_icons(const ImageListRef& icons) = 0;
    /// By its key in the list; an empty key takes the icon away. Error 35601 for a key that is not there.
    virtual void set_header_icon(std::int32_t column, std::u16string_view key) = 0;
    /// Takes all images from the list anew, which is the host's and changes without a word.
    virtual void renew_header_icons() = 0;

    /// The header that the keyboard acts on, shown as such; 0 for none.
    virtual std::int32_t marked_header() const = 0;
    /// Scrolls it into view. The keyboard focus itself stays with the list.
    virtual void mark_header(std::int32_t column) = 0;

    virtual bool hide_column_headers() const = 0;
    virtual void set_hide_column_headers(bool hide) = 0;
    virtual bool allow_column_reorder() const = 0;
    virtual void set_allow_column_reorder(bool allow) = 0;
    virtual bool check_boxes() const = 0;
    virtual void set_check_boxes(bool show) = 0;
    virtual bool grid_lines() const = 0;
    virtual void set_grid_lines(bool show) = 0;

    virtual FontRef font() const = 0;
    virtual void set_font(const FontRef& font) = 0;
    virtual PictureRef picture() const = 0;
    virtual void set_picture(const PictureRef& picture) = 0;
    virtual OleColor fore_color() const = 0;
    virtual void set_fore_color(OleColor color) = 0;
    virtual OleColor back_color() const = 0;
    virtual void set_back_color(OleColor color) = 0;
};

} // namespace vellora
