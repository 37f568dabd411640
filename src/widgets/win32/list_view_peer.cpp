#include "widgets/win32/list_view_peer.h"

#include "runtime/host_error.h"
#include "widgets/win32/list_cell_text.h"
#include "widgets/win32/list_message_guard.h"
#include "widgets/win32/screen_metrics.h"

namespace vellora::win32 {

namespace {

constexpr float new_header_width = 1440; // twips

bool shows_window(const WindowMessage& message) {
    if (message.id == WM_SHOWWINDOW)
        return message.wparam != FALSE;
    if (message.id != WM_WINDOWPOSCHANGING)
        return false;
    const auto* const change = structure_at<WINDOWPOS>(message.lparam);
    return change && (change->flags & SWP_SHOWWINDOW);
}

bool is_input(UINT message) {
    return (message >= WM_KEYFIRST && message <= WM_KEYLAST) ||
           (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) || message == WM_VSCROLL ||
           message == WM_HSCROLL;
}

} // namespace

ListViewPeer::ListViewPeer(HWND surface, FocusTracker& focus, const TextCompare& compare)
    : focus_(focus), window_(surface), rows_(compare), mirror_(window_, rows_), headers_(window_),
      header_icons_(window_, headers_), header_mark_(window_), widths_(window_, headers_, rows_),
      caption_ends_(window_, headers_, widths_), item_messages_(window_, rows_),
      column_messages_(window_, headers_, widths_, mirror_), display_(rows_), appearance_(window_),
      input_(window_, rows_, mirror_), tool_tip_(window_, rows_),
      font_([this](HFONT font, bool) { apply_font(font); }) {
    window_.serve(this);
    receive_notifications(window_.handle(), this);
    font_.set(nullptr);
}

// The window outlasts the parts that answer for it.
ListViewPeer::~ListViewPeer() {
    receive_notifications(window_.handle(), nullptr);
    window_.serve(nullptr);
}

// ---- Messages of the window ----

LRESULT ListViewPeer::list_message(WindowMessage message) {
    bring_up_to_date(message);
    tool_tip_.watch(message);
    if (const auto taken = input_.take(message))
        return *taken;
    if (const auto answered = answer(message))
        return *answered;
    return pass_on(message);
}

void ListViewPeer::bring_up_to_date(const WindowMessage& message) {
    if (message.id == WM_PAINT)
        appearance_.renew_colors();
    if (message.id == WM_PAINT || is_list_message(message.id) || is_input(message.id))
        mirror_.flush();
    else if (shows_window(message))
        mirror_.flush_sorted();
}

std::optional<LRESULT> ListViewPeer::answer(const WindowMessage& message) {
    if (is_refused(message))
        return LRESULT{0};
    if (const auto text = tool_tip_.answer(message))
        return text;
    if (const auto item = item_messages_.answer(message))
        return item;
    if (const auto drawn = caption_ends_.answer(message)) {
        header_mark_.draw_over(message);
        return drawn;
    }
    return column_messages_.answer(message);
}

LRESULT ListViewPeer::pass_on(const WindowMessage& message) {
    const Lifeline::Watch watch(lifeline_);
    input_.begin();
    const LRESULT result = window_.native(message);
    if (!watch.alive())
        return result;
    appearance_.message_passed(message);
    input_.finish();
    if (watch.alive())
        track_focus(message);
    return result;
}

// Losing the focus may end the control, so nothing follows.
void ListViewPeer::track_focus(const WindowMessage& message) {
    if (message.id == WM_SETFOCUS)
        focus_.arrived_from(reinterpret_cast<HWND>(message.wparam));
    else if (message.id == WM_KILLFOCUS)
        focus_.left_to(reinterpret_cast<HWND>(message.wparam));
}

LRESULT ListViewPeer::notified(NMHDR& header) {
    if (const auto shown = display_.answer(header))
        return *shown;
    if (const auto painted = appearance_.answer(header))
        return *painted;
    if (!mirror_.note(header))
        input_.note(header);
    return 0;
}

// ---- The window as a widget ----

void ListViewPeer::move(const Bounds& bounds) {
    move_window(window_.handle(), bounds);
    mirror_.settle_scroll_bars();
}

void ListViewPeer::set_visible(bool visible) {
    if (visible)
        mirror_.flush_sorted();
    show_window(window_.handle(), visible);
}

// ---- Rows ----

void ListViewPeer::refresh() {
    rows_.refresh();
    mirror_.flush();
}

void ListViewPeer::ensure_visible(std::int32_t row) {
    mirror_.bring_into_view(rows_.ref(row));
}

float ListViewPeer::row_height() const {
    constexpr LPARAM quietly = LVSICF_NOINVALIDATEALL | LVSICF_NOSCROLL;
    const bool empty = window_.native(LVM_GETITEMCOUNT) == 0;
    RECT row{};
    row.left = LVIR_BOUNDS;
    // Without a row the window tells no height.
    if (empty)
        window_.native(LVM_SETITEMCOUNT, 1, quietly);
    window_.native(LVM_GETITEMRECT, 0, &row);
    if (empty)
        window_.native(LVM_SETITEMCOUNT, 0, quietly);
    return twips_y(row.bottom - row.top);
}

// ---- Headers ----

void ListViewPeer::clear_headers() {
    headers_.clear();
    mirror_.settle_scroll_bars();
}

void ListViewPeer::add_header(std::u16string_view text) {
    headers_.add(text, pixels_x(new_header_width));
}

void ListViewPeer::set_header_text(std::int32_t column, std::u16string_view text) {
    headers_.set_text(column - 1, text);
}

float ListViewPeer::header_width(std::int32_t column) const {
    return twips_x(headers_.width(column - 1));
}

void ListViewPeer::set_header_width(std::int32_t column, float width) {
    if (width < 0)
        throw HostError(error_number::invalid_property_value);
    headers_.set_width(column - 1, pixels_x(width));
    mirror_.settle_scroll_bars();
}

void ListViewPeer::set_header_tag(std::int32_t column, std::u16string_view tag) {
    headers_.set_tag(column - 1, tag);
}

void ListViewPeer::set_column_header_icons(const ImageListRef& icons) {
    header_icons_.set_list(icons);
    mirror_.settle_scroll_bars();
}

void ListViewPeer::set_header_icon(std::int32_t column, std::u16string_view key) {
    header_icons_.set(column - 1, key);
}

std::int32_t ListViewPeer::marked_header() const {
    const std::int32_t column = header_mark_.column() + 1;
    return column <= header_count() ? column : 0;
}

void ListViewPeer::mark_header(std::int32_t column) {
    if (column == 0 && header_mark_.column() < 0)
        return;
    header_mark_.put(column - 1);
    if (column == 0)
        mirror_.announce_focus();
}

// ---- Styles ----

bool ListViewPeer::hide_column_headers() const {
    return window_.has_style(LVS_NOCOLUMNHEADER);
}

void ListViewPeer::set_hide_column_headers(bool hide) {
    if (hide == hide_column_headers())
        return;
    window_.set_style(LVS_NOCOLUMNHEADER, hide);
    mirror_.settle_scroll_bars();
    redraw(window_.handle());
}

bool ListViewPeer::allow_column_reorder() const {
    return window_.has_extended_style(LVS_EX_HEADERDRAGDROP);
}

void ListViewPeer::set_allow_column_reorder(bool allow) {
    window_.set_extended_style(LVS_EX_HEADERDRAGDROP, allow);
}

bool ListViewPeer::check_boxes() const {
    return window_.has_extended_style(LVS_EX_CHECKBOXES);
}

void ListViewPeer::set_check_boxes(bool show) {
    window_.native(LVM_SETCALLBACKMASK, show ? LVIS_STATEIMAGEMASK : 0);
    window_.set_extended_style(LVS_EX_CHECKBOXES, show);
    redraw(window_.handle());
}

bool ListViewPeer::grid_lines() const {
    return window_.has_extended_style(LVS_EX_GRIDLINES);
}

void ListViewPeer::set_grid_lines(bool show) {
    window_.set_extended_style(LVS_EX_GRIDLINES, show);
}

void ListViewPeer::apply_font(HFONT font) {
    window_.native(WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    widths_.font_changed();
    mirror_.settle_scroll_bars();
}

} // namespace vellora::win32
