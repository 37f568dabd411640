#include "widgets/win32/list_item_messages.h"

#include "widgets/win32/list_cell_text.h"
#include "widgets/win32/list_display.h"
#include "widgets/win32/list_search.h"

#include <algorithm>

namespace vellora::win32 {

namespace {

constexpr UINT last_list_message = LVM_FIRST + 0xFF;
constexpr std::int32_t every_row = -1;
constexpr UINT window_state = LVIS_SELECTED | LVIS_FOCUSED | LVIS_CUT | LVIS_DROPHILITED;

std::int32_t row_of(const WindowMessage& message) {
    return static_cast<std::int32_t>(message.wparam);
}

// State image 1 is the empty box and 2 the checked one; others are none of this list's.
std::optional<bool> check_in(UINT state, UINT mask) {
    if (!(mask & LVIS_STATEIMAGEMASK))
        return std::nullopt;
    const UINT image = (state & LVIS_STATEIMAGEMASK) >> 12;
    if (image != 1 && image != 2)
        return std::nullopt;
    return image == 2;
}

} // namespace

bool is_list_message(UINT message) {
    return message >= LVM_FIRST && message <= last_list_message;
}

std::optional<LRESULT> ListItemMessages::answer(const WindowMessage& message) {
    if (!is_list_message(message.id))
        return std::nullopt;
    if (const auto read = answer_read(message))
        return read;
    return answer_write(message);
}

std::optional<LRESULT> ListItemMessages::answer_read(const WindowMessage& message) {
    switch (message.id) {
    case LVM_GETITEMTEXTW:
        return item_text(row_of(message), structure_at<LVITEMW>(message.lparam));
    case LVM_GETITEMTEXTA:
        return item_text(row_of(message), structure_at<LVITEMA>(message.lparam));
    case LVM_GETITEMW:
        return get_item(structure_at<LVITEMW>(message.lparam));
    case LVM_GETITEMA:
        return get_item(structure_at<LVITEMA>(message.lparam));
    case LVM_GETITEMSTATE:
        return static_cast<LRESULT>(row_state(row_of(message), static_cast<UINT>(message.lparam)));
    case LVM_FINDITEMW:
        return find_item(row_of(message), structure_at<LVFINDINFOW>(message.lparam));
    case LVM_FINDITEMA:
        return find_item(row_of(message), structure_at<LVFINDINFOA>(message.lparam));
    default:
        return std::nullopt;
    }
}

std::optional<LRESULT> ListItemMessages::answer_write(const WindowMessage& message) {
    switch (message.id) {
    case LVM_SETITEMTEXTW:
        return set_item_text(row_of(message), structure_at<LVITEMW>(message.lparam));
    case LVM_SETITEMTEXTA:
        return set_item_text(row_of(message), structure_at<LVITEMA>(message.lparam));
    case LVM_SETITEMW:
        return set_item(structure_at<LVITEMW>(message.lparam));
    case LVM_SETITEMA:
        return set_item(structure_at<LVITEMA>(message.lparam));
    case LVM_SETITEMSTATE:
        return set_item_state(row_of(message), structure_at<LVITEMW>(message.lparam));
    case LVM_INSERTITEMW:
        return insert_item(structure_at<LVITEMW>(message.lparam));
    case LVM_INSERTITEMA:
        return insert_item(structure_at<LVITEMA>(message.lparam));
    case LVM_DELETEITEM:
        return delete_item(row_of(message));
    case LVM_DELETEALLITEMS:
        return delete_all_items();
    case LVM_SETITEMCOUNT:
    case LVM_SORTITEMS:
    case LVM_SORTITEMSEX:
        return FALSE;
    default:
        return std::nullopt;
    }
}

template <typename Item>
LRESULT ListItemMessages::item_text(std::int32_t row, const Item* item) const {
    if (!item)
        return 0;
    return copy_text(cell_text(rows_, row, item->iSubItem), item->pszText, item->cchTextMax);
}

template <typename Item>
LRESULT ListItemMessages::get_item(Item* item) const {
    if (!item || !has_row(rows_, item->iItem) || item->iSubItem < 0)
        return FALSE;
    if (item->mask & LVIF_TEXT)
        copy_text(cell_text(rows_, item->iItem, item->iSubItem), item->pszText, item->cchTextMax);
    if (item->mask & LVIF_STATE)
        item->state = item->iSubItem == 0 ? row_state(item->iItem, item->stateMask) : 0;
    if (item->mask & LVIF_IMAGE)
        item->iImage = I_IMAGENONE;
    if (item->mask & LVIF_PARAM)
        item->lParam = 0;
    if (item->mask & LVIF_INDENT)
        item->iIndent = 0;
    return TRUE;
}

UINT ListItemMessages::row_state(std::int32_t row, UINT mask) const {
    if (!has_row(rows_, row))
        return 0;
    const auto state = static_cast<UINT>(
        window_.native(LVM_GETITEMSTATE, static_cast<WPARAM>(row), static_cast<LPARAM>(mask & window_state)));
    const bool boxes = window_.has_extended_style(LVS_EX_CHECKBOXES);
    return ((state & window_state) | (boxes ? check_state(rows_, row) : 0)) & mask;
}

template <typename Search>
LRESULT ListItemMessages::find_item(std::int32_t start, const Search* search) const {
    // The search begins behind the given row.
    return search ? search_rows(rows_, *search, std::max(start, -1) + 1) : -1;
}

template <typename Item>
LRESULT ListItemMessages::insert_item(const Item* item) {
    if (!item || item->iItem < 0 || item->iSubItem != 0)
        return -1;
    const RowRef row = rows_.insert(std::min(static_cast<std::int32_t>(item->iItem), rows_.count()));
    if (item->mask & LVIF_TEXT)
        rows_.set_text(rows_.position(row), 0, text_of(item->pszText));
    if (item->mask & LVIF_STATE)
        set_row_state(rows_.position(row), item->state, item->stateMask);
    return rows_.position(row);
}

template <typename Item>
LRESULT ListItemMessages::set_item(const Item* item) {
    if (!item || !has_row(rows_, item->iItem) || item->iSubItem < 0)
        return FALSE;
    if ((item->mask & LVIF_TEXT) && !set_item_text(item->iItem, item))
        return FALSE;
    if ((item->mask & LVIF_STATE) && item->iSubItem == 0)
        set_row_state(item->iItem, item->state, item->stateMask);
    return TRUE;
}

template <typename Item>
LRESULT ListItemMessages::set_item_text(std::int32_t row, const Item* item) {
    return item && write_cell(rows_, row, item->iSubItem, column_count(), text_of(item->pszText));
}

LRESULT ListItemMessages::set_item_state(std::int32_t row, const LVITEMW* item) {
    if (!item)
        return FALSE;
    if (row == every_row)
        return set_every_state(*item);
    if (!has_row(rows_, row))
        return FALSE;
    set_row_state(row, item->state, item->stateMask);
    return TRUE;
}

LRESULT ListItemMessages::set_every_state(const LVITEMW& item) {
    if (const auto check = check_in(item.state, item.stateMask)) {
        for (std::int32_t row = 0; row < rows_.count(); ++row)
            rows_.set_checked(row, *check);
    }
    const UINT selection = item.stateMask & LVIS_SELECTED;
    if (!selection)
        return TRUE;
    // One row at most is selected: all together can only be deselected.
    if (item.state & selection)
        return FALSE;
    rows_.select(-1);
    return TRUE;
}

void ListItemMessages::set_row_state(std::int32_t row, UINT state, UINT mask) {
    if (const auto check = check_in(state, mask))
        rows_.set_checked(row, *check);
    if (mask & LVIS_SELECTED) {
        if (state & LVIS_SELECTED)
            rows_.select(row);
        else if (rows_.selected() == row)
            rows_.select(-1);
    }
}

LRESULT ListItemMessages::delete_item(std::int32_t row) {
    if (!has_row(rows_, row))
        return FALSE;
    rows_.remove(row);
    return TRUE;
}

LRESULT ListItemMessages::delete_all_items() {
    rows_.clear();
    return TRUE;
}

std::int32_t ListItemMessages::column_count() const {
    const auto count = static_cast<std::int32_t>(SendMessageW(window_.header(), HDM_GETITEMCOUNT, 0, 0));
    return std::max(count, 0);
}

} // namespace vellora::win32
