// The headless list: its headers and the window messages about them.
#include "support/headless/list_view.h"

#include "runtime/host_error.h"
#include "widgets/user32.h"

#include <algorithm>
#include <numeric>

namespace vellora::test {

namespace {

constexpr std::int32_t character_width = 6;
constexpr std::int32_t cell_padding = 12;
constexpr std::int32_t border = 2;
constexpr std::int32_t scroll_bar_size = 17;

std::int32_t text_pixels(std::u16string_view text) {
    return static_cast<std::int32_t>(text.size()) * character_width + cell_padding;
}

} // namespace

HeadlessListView::HeadlessListView(Desktop& desktop, const Screen& screen, WindowHandle parent,
                                   std::string name)
    : Peer(desktop, screen, parent, std::move(name)) {
    Desktop::Window window;
    window.name = "header";
    window.parent = this->window();
    header_window_ = desktop.create(window);
    set_header_height(20);
}

void HeadlessListView::set_header_height(std::int32_t pixels) {
    desktop().at(header_window_).rect = {0, 0, 100, pixels};
}

void HeadlessListView::refresh() {
    ++refresh_count;
    rows_.refresh();
}

void HeadlessListView::ensure_visible(std::int32_t row) {
    if (row < 0 || row >= rows_.count()) {
        throw HostError(error_number::index_out_of_bounds);
    }
    scrolled_to.push_back(row);
}

const HeadlessListView::Header& HeadlessListView::header(std::int32_t column) const {
    if (column < 1 || column > header_count()) {
        throw HostError(error_number::index_out_of_bounds);
    }
    return headers_[static_cast<std::size_t>(column - 1)];
}

HeadlessListView::Header& HeadlessListView::header(std::int32_t column) {
    return const_cast<Header&>(std::as_const(*this).header(column));
}

void HeadlessListView::clear_headers() {
    headers_.clear();
    reset_order();
}

void HeadlessListView::add_header(std::u16string_view text) {
    Header& added = headers_.emplace_back();
    added.text = text;
    added.width = 1440;
    reset_order();
}

void HeadlessListView::set_header_text(std::int32_t column, std::u16string_view text) {
    header(column).text = text;
}

void HeadlessListView::set_header_width(std::int32_t column, float width) {
    Header& target = header(column);
    if (width < 0) {
        throw HostError(error_number::invalid_property_value);
    }
    target.width = width;
}

void HeadlessListView::set_header_tag(std::int32_t column, std::u16string_view tag) {
    header(column).tag = tag;
}

void HeadlessListView::set_column_header_icons(const ImageListRef& icons) {
    header_icons_ = icons;
    renew_header_icons();
}

void HeadlessListView::set_header_icon(std::int32_t column, std::u16string_view key) {
    Header& target = header(column);
    const auto image = key.empty() || !header_icons_ ? std::nullopt : header_icons_->image(key);
    if (!key.empty() && !image) {
        throw HostError(error_number::element_not_found);
    }
    target.icon = key;
    target.image = image.value_or(-1);
}

void HeadlessListView::renew_header_icons() {
    for (Header& each : headers_) {
        const bool has_one = header_icons_ && !each.icon.empty();
        each.image = has_one ? header_icons_->image(each.icon).value_or(-1) : -1;
    }
}

void HeadlessListView::reset_order() {
    order_.resize(headers_.size());
    std::iota(order_.begin(), order_.end(), 0);
}

std::intptr_t HeadlessListView::handle_message(std::uint32_t message, std::uintptr_t wparam,
                                               std::intptr_t lparam) {
    switch (message) {
    case message::list_get_header:
        return without_header ? 0 : header_window_;
    case message::list_set_column_width: {
        const auto code = static_cast<std::int16_t>(lparam & 0xFFFF);
        if (wparam < headers_.size() && code < 0) {
            auto_size(wparam, code == -2);
        }
        return 1;
    }
    case message::list_get_column_order:
        get_order(wparam, reinterpret_cast<std::int32_t*>(lparam));
        return 1;
    case message::list_set_column_order:
        return set_order(wparam, reinterpret_cast<const std::int32_t*>(lparam));
    case message::notify:
        ++notifications_seen;
        return notify_answer;
    default:
        return 0;
    }
}

std::int32_t HeadlessListView::header_pixels(std::size_t column) const {
    return screen().pixels_x(headers_[column].width);
}

std::int32_t HeadlessListView::content_pixels(std::size_t column) const {
    std::int32_t widest = 0;
    for (std::int32_t row = 0; row < rows_.count(); ++row) {
        if (static_cast<std::int32_t>(column) <= rows_.sub_item_count(row)) {
            widest = std::max(widest, text_pixels(rows_.text(row, static_cast<std::int32_t>(column))));
        }
    }
    return widest;
}

void HeadlessListView::auto_size(std::size_t column, bool with_header) {
    std::int32_t pixels = content_pixels(column);
    if (with_header) {
        pixels = std::max(pixels, text_pixels(headers_[column].text));
        if (column + 1 == headers_.size()) {
            std::int32_t left_over = screen().pixels_x(bounds().width) - 2 * border;
            for (std::size_t before = 0; before < column; ++before) {
                left_over -= header_pixels(before);
            }
            pixels = std::max(pixels, left_over);
        }
    }
    headers_[column].width = static_cast<float>(pixels) * screen().twips_per_pixel_x;
}

void HeadlessListView::get_order(std::size_t count, std::int32_t* order) const {
    std::copy_n(order_.begin(), std::min(count, order_.size()), order);
}

std::intptr_t HeadlessListView::set_order(std::size_t count, const std::int32_t* order) {
    if (count != order_.size()) {
        return 0;
    }
    std::copy_n(order, count, order_.begin());
    return 1;
}

std::uint32_t HeadlessListView::content_style() const {
    if (scroll_bars) {
        return scroll_bars();
    }
    std::int32_t width = screen().pixels_x(bounds().width) - 2 * border;
    std::int32_t height = screen().pixels_y(bounds().height) - 2 * border;
    if (!hide_column_headers_) {
        const PixelRect& header_rect = desktop().at(header_window_).rect;
        height -= header_rect.bottom - header_rect.top;
    }
    std::int32_t columns = 0;
    for (std::size_t column = 0; column < headers_.size(); ++column) {
        columns += header_pixels(column);
    }
    const std::int32_t rows = rows_.count() * screen().pixels_y(row_height_);
    bool across = columns > width;
    const bool down = rows > std::max(0, height - (across ? scroll_bar_size : 0));
    across = columns > width - (down ? scroll_bar_size : 0);
    return (across ? window_style::horizontal_scroll_bar : 0U) |
           (down ? window_style::vertical_scroll_bar : 0U);
}

} // namespace vellora::test
