#include "widgets/win32/list_column_widths.h"

#include <algorithm>
#include <exception>

namespace vellora::win32 {

namespace {

// What the platform's list leaves beside a text.
constexpr int text_margins = 12;

// Changes of the rows after which the widths are brought up to date ahead of any question.
constexpr std::uint64_t changes_at_a_time = 30'000;

// A header without visual style draws a raised edge besides.
int caption_margins() {
    return text_margins + 2 * GetSystemMetrics(SM_CXEDGE);
}

} // namespace

ListColumnWidths::ListColumnWidths(const ListWindow& window, const ListHeaders& headers, ListRows& rows)
    : window_(window), headers_(headers), rows_(rows), measure_(rows) {
    rows_.set_interval(changes_at_a_time, [this] { keep_up(); });
}

ListColumnWidths::~ListColumnWidths() {
    rows_.set_interval(0, nullptr);
}

// Without this the first opening after 100,000 rows were added would be the one to measure them all.
void ListColumnWidths::keep_up() noexcept {
    try {
        for (std::int32_t column = 0; window_.handle() && column < headers_.count(); ++column)
            for_content(column);
    } catch (const std::exception&) {
        // Memory is short. What could not be measured now is measured when it is asked for.
        return;
    }
}

TextMeasure ListColumnWidths::text_measure() const {
    const auto font = reinterpret_cast<HFONT>(window_.native(WM_GETFONT));
    if (!font_drawn_wider_)
        font_drawn_wider_ = is_drawn_wider(font);
    return {font, *font_drawn_wider_};
}

void ListColumnWidths::font_changed() {
    measure_.invalidate();
    font_drawn_wider_.reset();
}

int ListColumnWidths::for_content(std::int32_t column) {
    const bool boxes = column == 0 && window_.has_extended_style(LVS_EX_CHECKBOXES);
    const TextMeasure measurer = text_measure();
    return measure_.widest(column, measurer) + text_margins + (boxes ? GetSystemMetrics(SM_CXSMICON) : 0);
}

int ListColumnWidths::for_content_and_header(std::int32_t column) {
    const int width = std::max(for_content(column), for_caption(column));
    return column == headers_.count() - 1 ? std::max(width, left_over(column)) : width;
}

int ListColumnWidths::for_caption(std::int32_t column) const {
    const TextMeasure measurer = text_measure();
    return measurer.width(headers_.text(column)) + caption_margins() + icon_width(column);
}

int ListColumnWidths::icon_width(std::int32_t column) const {
    HDITEMW item{};
    item.mask = HDI_FORMAT;
    SendMessageW(window_.header(), HDM_GETITEMW, static_cast<WPARAM>(column),
                 reinterpret_cast<LPARAM>(&item));
    const auto icons =
        reinterpret_cast<HIMAGELIST>(SendMessageW(window_.header(), HDM_GETIMAGELIST, HDSIL_NORMAL, 0));
    int width = 0;
    int height = 0;
    if (!(item.fmt & HDF_IMAGE) || !icons || !ImageList_GetIconSize(icons, &width, &height))
        return 0;
    return width + 2 * static_cast<int>(SendMessageW(window_.header(), HDM_GETBITMAPMARGIN, 0, 0));
}

int ListColumnWidths::left_over(std::int32_t column) const {
    int left = static_cast<int>(window_.client_area().right);
    for (std::int32_t other = 0; other < headers_.count(); ++other) {
        if (other != column)
            left -= headers_.width(other);
    }
    return left;
}

} // namespace vellora::win32
