#include "widgets/win32/list_input.h"

#include "widgets/win32/user_input.h"

namespace vellora::win32 {

std::optional<LRESULT> ListInput::take(WindowMessage& message) {
    switch (message.id) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
        return key_down(message);
    case WM_CHAR:
        return character(message);
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        return press(message);
    default:
        return std::nullopt;
    }
}

std::optional<LRESULT> ListInput::key_down(WindowMessage& message) {
    auto key = static_cast<std::int16_t>(message.wparam);
    if (listener_) {
        const Lifeline::Watch watch(lifeline_);
        listener_->list_key_down(key, shift_mask());
        if (!watch.alive() || key == 0)
            return 0;
        message.wparam = static_cast<std::uint16_t>(key);
    }
    if (message.id != WM_KEYDOWN || key != VK_SPACE || shift_mask() != 0 || !has_check_boxes())
        return std::nullopt;
    toggle(mirror_.focused_row());
    return 0;
}

std::optional<LRESULT> ListInput::character(WindowMessage& message) {
    auto unit = static_cast<std::int16_t>(message.wparam);
    if (listener_) {
        const Lifeline::Watch watch(lifeline_);
        listener_->list_key_press(unit);
        if (!watch.alive() || unit == 0)
            return 0;
        message.wparam = static_cast<std::uint16_t>(unit);
    }
    // With check boxes the space bar is theirs, and no part of the text that rows are found by.
    if (unit == u' ' && has_check_boxes())
        return 0;
    return std::nullopt;
}

std::optional<LRESULT> ListInput::press(const WindowMessage& message) {
    const std::int32_t row = check_box_at(message.lparam);
    if (row < 0)
        return std::nullopt;
    const Lifeline::Watch watch(lifeline_);
    SetFocus(window_.handle());
    if (watch.alive())
        toggle(row);
    if (watch.alive() && listener_)
        listener_->list_clicked();
    return 0;
}

std::int32_t ListInput::check_box_at(LPARAM position) const {
    if (!has_check_boxes())
        return -1;
    LVHITTESTINFO hit{};
    hit.pt = point_of(position);
    window_.native(LVM_SUBITEMHITTEST, 0, &hit);
    return hit.flags == LVHT_ONITEMSTATEICON ? hit.iItem : -1;
}

void ListInput::toggle(std::int32_t row) {
    if (row < 0 || row >= rows_.count())
        return;
    rows_.set_checked(row, !rows_.checked(row));
    if (listener_)
        listener_->list_item_checked(row);
}

// A double click is a click: its first half may have been spent on opening the list or on a check box.
void ListInput::note(const NMHDR& header) {
    const UINT code = header.code;
    if (code == NM_CLICK || code == NM_DBLCLK)
        noted_.click = true;
    else if (code == LVN_COLUMNCLICK)
        noted_.column = reinterpret_cast<const NMLISTVIEW&>(header).iSubItem;
    else
        return;
    noted_.depth = depth_;
    if (depth_ == 0)
        tell();
}

void ListInput::finish() {
    const bool due = noted_.depth == depth_;
    --depth_;
    if (due)
        tell();
}

void ListInput::tell() {
    const Noted noted = noted_;
    noted_ = {};
    if (!listener_)
        return;
    const Lifeline::Watch watch(lifeline_);
    if (noted.click)
        listener_->list_clicked();
    if (noted.column != no_column && watch.alive() && listener_)
        listener_->list_column_clicked(noted.column + 1);
}

} // namespace vellora::win32
