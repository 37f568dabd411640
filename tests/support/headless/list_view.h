// A report list without a screen: real rows, headers with widths, and the answers to the messages that size
// and order columns. Texts are 6 pixels per character.
#pragma once

#include "runtime/plain_text_compare.h"
#include "support/headless/fonts.h"
#include "support/headless/peer.h"
#include "widgets/list_rows.h"
#include "widgets/list_view.h"

#include <functional>
#include <optional>
#include <vector>

namespace vellora::test {

class HeadlessListView : public Peer<ListView> {
public:
    HeadlessListView(Desktop& desktop, const Screen& screen, WindowHandle parent, std::string name);

    void listen(ListViewListener* listener) override { listener_ = listener; }
    ListViewListener* listener() const { return listener_; }

    ListRows& rows() override { return rows_; }
    const ListRows& rows() const { return rows_; }
    void refresh() override;
    void ensure_visible(std::int32_t row) override;
    float row_height() const override { return row_height_; }

    std::int32_t header_count() const override { return static_cast<std::int32_t>(headers_.size()); }
    void clear_headers() override;
    void add_header(std::u16string_view text) override;
    std::u16string header_text(std::int32_t column) const override { return header(column).text; }
    void set_header_text(std::int32_t column, std::u16string_view text) override;
    float header_width(std::int32_t column) const override { return header(column).width; }
    void set_header_width(std::int32_t column, float width) override;
    std::u16string header_tag(std::int32_t column) const override { return header(column).tag; }
    void set_header_tag(std::int32_t column, std::u16string_view tag) override;

    ImageListRef column_header_icons() const override { return header_icons_; }
    void set_column_header_icons(const ImageListRef& icons) override;
    void set_header_icon(std::int32_t column, std::u16string_view key) override;
    void renew_header_icons() override;

    std::int32_t marked_header() const override { return marked_header_; }
    void mark_header(std::int32_t column) override { marked_header_ = column; }

    bool hide_column_headers() const override { return hide_column_headers_; }
    void set_hide_column_headers(bool hide) override { hide_column_headers_ = hide; }
    bool allow_column_reorder() const override { return allow_column_reorder_; }
    void set_allow_column_reorder(bool allow) override { allow_column_reorder_ = allow; }
    bool check_boxes() const override { return check_boxes_; }
    void set_check_boxes(bool show) override { check_boxes_ = show; }
    bool grid_lines() const override { return grid_lines_; }
    void set_grid_lines(bool show) override { grid_lines_ = show; }
    FontRef font() const override { return font_; }
    void set_font(const FontRef& font) override { font_ = font; }
    PictureRef picture() const override { return picture_; }
    void set_picture(const PictureRef& picture) override { picture_ = picture; }
    OleColor fore_color() const override { return fore_color_; }
    void set_fore_color(OleColor color) override { fore_color_ = color; }
    OleColor back_color() const override { return back_color_; }
    void set_back_color(OleColor color) override { back_color_ = color; }

    std::intptr_t handle_message(std::uint32_t message, std::uintptr_t wparam, std::intptr_t lparam) override;
    std::uint32_t content_style() const override;

    /// The 0-based image a header shows, -1 for none.
    std::int32_t shown_icon(std::int32_t column) const { return header(column).image; }
    WindowHandle header_window() const { return header_window_; }
    void set_row_height(float twips) { row_height_ = twips; }
    void set_header_height(std::int32_t pixels);
    /// The scroll bars as the test wants them, asked for at every look at the style; empty for computed ones.
    std::function<std::uint32_t()> scroll_bars;
    /// What the list itself answers to a notification of its header.
    std::intptr_t notify_answer = 0;
    std::int32_t notifications_seen = 0;
    std::int32_t refresh_count = 0;
    /// Rows that were scrolled into view, in order.
    std::vector<std::int32_t> scrolled_to;
    /// Answers 0 to LVM_GETHEADER.
    bool without_header = false;

private:
    struct Header {
        std::u16string text;
        float width = 0;
        std::u16string tag;
        std::u16string icon;
        std::int32_t image = -1;
    };
    const Header& header(std::int32_t column) const;
    Header& header(std::int32_t column);
    std::int32_t header_pixels(std::size_t column) const;
    std::int32_t content_pixels(std::size_t column) const;
    void auto_size(std::size_t column, bool with_header);
    void get_order(std::size_t count, std::int32_t* order) const;
    std::intptr_t set_order(std::size_t count, const std::int32_t* order);
    void reset_order();

    PlainTextCompare compare_;
    ListRows rows_{compare_};
    ListViewListener* listener_ = nullptr;
    std::vector<Header> headers_;
    std::vector<std::int32_t> order_;
    WindowHandle header_window_ = 0;
    float row_height_ = 255;
    std::int32_t marked_header_ = 0;
    bool hide_column_headers_ = false;
    bool allow_column_reorder_ = false;
    bool check_boxes_ = false;
    bool grid_lines_ = false;
    ImageListRef header_icons_;
    FontRef font_;
    PictureRef picture_;
    OleColor fore_color_ = 0x80000008;
    OleColor back_color_ = 0x80000005;
};

} // namespace vellora::test
