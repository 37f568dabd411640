#include "widgets/win32/list_column_messages.h"

#include "widgets/win32/list_cell_text.h"
#include "widgets/win32/window_widget.h"

#include <algorithm>
#include <vector>

namespace vellora::win32 {

namespace {

std::int32_t column_of(const WindowMessage& message) {
    return static_cast<std::int32_t>(message.wparam);
}

bool is_order(const int* order, std::int32_t count) {
    std::vector<bool> met(static_cast<std::size_t>(count));
    for (std::int32_t place = 0; place < count; ++place) {
        const int column = order[place];
        if (column < 0 || column >= count || met[static_cast<std::size_t>(column)])
            return false;
        met[static_cast<std::size_t>(column)] = true;
    }
    return true;
}

} // namespace

std::optional<LRESULT> ListColumnMessages::answer(const WindowMessage& message) {
    switch (message.id) {
    case LVM_GETCOLUMNW:
        return get_column<LVCOLUMNW>(message);
    case LVM_GETCOLUMNA:
        return get_column<LVCOLUMNA>(message);
    case LVM_INSERTCOLUMNW:
        return insert_column<LVCOLUMNW>(message);
    case LVM_INSERTCOLUMNA:
        return insert_column<LVCOLUMNA>(message);
    case LVM_SETCOLUMNW:
        return set_column<LVCOLUMNW>(message);
    case LVM_SETCOLUMNA:
        return set_column<LVCOLUMNA>(message);
    case LVM_DELETECOLUMN:
        return delete_column(message);
    case LVM_SETCOLUMNWIDTH:
        return set_width(message);
    case LVM_SETCOLUMNORDERARRAY:
        return set_order(message);
    case LVM_GETCOLUMNORDERARRAY:
        return get_order(message);
    case WM_NOTIFY:
        return header_notification(structure_at<NMHDR>(message.lparam));
    default:
        return std::nullopt;
    }
}

// The caller's structure may be of an older and shorter kind: it is handed on as it is, but for the text.
template <typename Column>
LRESULT ListColumnMessages::get_column(const WindowMessage& message) const {
    auto* const column = structure_at<Column>(message.lparam);
    if (!column || !has_column(column_of(message)))
        return FALSE;
    const UINT wanted = column->mask;
    column->mask = wanted & ~static_cast<UINT>(LVCF_TEXT);
    const LRESULT done = window_.native(message);
    column->mask = wanted;
    if (wanted & LVCF_TEXT)
        copy_text(headers_.text(column_of(message)), column->pszText, column->cchTextMax);
    return done;
}

template <typename Column>
LRESULT ListColumnMessages::insert_column(const WindowMessage& message) {
    const auto* const column = structure_at<Column>(message.lparam);
    if (!column || column_of(message) < 0)
        return -1;
    const LRESULT place = window_.native(message);
    if (place >= 0)
        headers_.inserted(static_cast<std::int32_t>(place),
                          column->mask & LVCF_TEXT ? text_of(column->pszText) : std::u16string());
    return place;
}

template <typename Column>
LRESULT ListColumnMessages::set_column(const WindowMessage& message) {
    const auto* const column = structure_at<Column>(message.lparam);
    if (!column || !has_column(column_of(message)))
        return FALSE;
    const LRESULT done = window_.native(message);
    if (done && (column->mask & LVCF_TEXT))
        headers_.renamed(column_of(message), text_of(column->pszText));
    return done;
}

LRESULT ListColumnMessages::delete_column(const WindowMessage& message) {
    if (!has_column(column_of(message)) || !window_.native(message))
        return FALSE;
    headers_.removed(column_of(message));
    return TRUE;
}

LRESULT ListColumnMessages::set_width(const WindowMessage& message) {
    const std::int32_t column = column_of(message);
    int width = static_cast<std::int16_t>(LOWORD(message.lparam));
    if (!has_column(column) || width < LVSCW_AUTOSIZE_USEHEADER)
        return FALSE;
    if (width == LVSCW_AUTOSIZE)
        width = widths_.for_content(column);
    else if (width == LVSCW_AUTOSIZE_USEHEADER)
        width = widths_.for_content_and_header(column);
    headers_.set_width(column, width);
    mirror_.settle_scroll_bars();
    return TRUE;
}

// The window would accept an array in which columns are missing or come twice, and paints its headers only.
LRESULT ListColumnMessages::set_order(const WindowMessage& message) const {
    const auto* const order = structure_at<const int>(message.lparam);
    if (!order || column_of(message) != headers_.count() || !is_order(order, headers_.count()))
        return FALSE;
    const LRESULT done = window_.native(message);
    redraw(window_.handle());
    return done;
}

// Nor does it compare the size of the array with what it knows to be there.
LRESULT ListColumnMessages::get_order(const WindowMessage& message) const {
    const std::int32_t count = std::min(column_of(message), headers_.count());
    return count < 0 ? FALSE : window_.native(message.id, static_cast<WPARAM>(count), message.lparam);
}

// The window would measure all its rows by itself. The message goes the long way round, for whoever watches.
std::optional<LRESULT> ListColumnMessages::header_notification(const NMHDR* notification) const {
    if (!notification || notification->hwndFrom != window_.header())
        return std::nullopt;
    const UINT code = notification->code;
    if (code != HDN_DIVIDERDBLCLICKW && code != HDN_DIVIDERDBLCLICKA)
        return std::nullopt;
    const int column = reinterpret_cast<const NMHEADERW*>(notification)->iItem;
    SendMessageW(window_.handle(), LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(column),
                 MAKELPARAM(LVSCW_AUTOSIZE, 0));
    return LRESULT{0};
}

} // namespace vellora::win32
