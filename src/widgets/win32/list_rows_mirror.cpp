#include "widgets/win32/list_rows_mirror.h"

#include "widgets/win32/window_widget.h"

#include <algorithm>

namespace vellora::win32 {

namespace {

constexpr UINT selected_and_focused = LVIS_SELECTED | LVIS_FOCUSED;

struct ScrollBar {
    int bar;
    DWORD style;
};
constexpr ScrollBar vertical_bar{SB_VERT, WS_VSCROLL};
constexpr ScrollBar horizontal_bar{SB_HORZ, WS_HSCROLL};

bool is_needed(HWND window, int bar) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE;
    GetScrollInfo(window, bar, &info);
    return info.nMin < info.nMax - std::max(static_cast<int>(info.nPage) - 1, 0);
}

// The list goes on showing a scroll bar that it needs no longer.
void settle(const ListWindow& window, const ScrollBar& bar) {
    const bool needed = is_needed(window.handle(), bar.bar);
    if (needed != window.has_style(bar.style))
        ShowScrollBar(window.handle(), bar.bar, needed);
}

class Raised {
public:
    explicit Raised(bool& flag) : flag_(flag) { flag_ = true; }
    ~Raised() { flag_ = false; }
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;

private:
    bool& flag_;
};

} // namespace

ListRowsMirror::ListRowsMirror(ListWindow& window, ListRows& rows) : window_(window), rows_(rows) {
    rows_.observe(this);
}

ListRowsMirror::~ListRowsMirror() {
    rows_.observe(nullptr);
}

void ListRowsMirror::rows_changed() {
    mark(content | order);
}

void ListRowsMirror::row_changed(std::int32_t) {
    mark(content | order);
}

void ListRowsMirror::selection_changed() {
    if (!adopting_)
        mark(selection);
}

void ListRowsMirror::bring_into_view(RowRef row) {
    wanted_in_view_ = row;
    mark(view);
}

// The painting that this asks for brings a visible list up to date.
void ListRowsMirror::mark(unsigned changes) {
    if (!has_changes())
        redraw(window_.handle());
    changes_ |= changes;
}

void ListRowsMirror::flush() {
    if (IsWindowVisible(window_.handle()))
        flush_sorted();
    else if (has_changes() && !mirroring_)
        mirror();
}

void ListRowsMirror::flush_sorted() {
    if (changes_ == 0 || mirroring_ || !window_.handle())
        return;
    if (changes_ & order)
        sort();
    if (changes_ & content)
        redraw(window_.handle());
    mirror();
}

void ListRowsMirror::sort() {
    rows_.refresh();
    changes_ &= ~static_cast<unsigned>(order);
}

void ListRowsMirror::mirror() {
    const Raised guard(mirroring_);
    if (changes_ & content)
        mirror_count();
    mirror_selection();
    if (changes_ & view)
        mirror_view();
    changes_ &= order;
}

// Rows beyond the new count lose their state without a notification.
void ListRowsMirror::mirror_count() {
    window_.native(LVM_SETITEMCOUNT, static_cast<WPARAM>(rows_.count()), LVSICF_NOINVALIDATEALL);
    selected_ = selected_ < rows_.count() ? selected_ : -1;
    focused_ = focused_ < rows_.count() ? focused_ : -1;
}

void ListRowsMirror::mirror_selection() {
    const std::int32_t wanted = rows_.selected();
    if (selected_ != -1 && selected_ != wanted)
        set_state(selected_, 0, LVIS_SELECTED);
    if (focused_ != -1 && focused_ != wanted)
        set_state(focused_, 0, LVIS_FOCUSED);
    if (wanted != -1 && (selected_ != wanted || focused_ != wanted))
        set_state(wanted, selected_and_focused, selected_and_focused);
}

void ListRowsMirror::mirror_view() {
    const std::int32_t row = rows_.position(wanted_in_view_);
    if (row >= 0)
        window_.native(LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
}

void ListRowsMirror::set_state(std::int32_t row, UINT state, UINT mask) {
    LVITEMW item{};
    item.state = state;
    item.stateMask = mask;
    window_.native(LVM_SETITEMSTATE, static_cast<WPARAM>(row), &item);
}

bool ListRowsMirror::note(const NMHDR& header) {
    if (static_cast<UINT>(header.code) == LVN_ITEMCHANGED) {
        const auto& change = reinterpret_cast<const NMLISTVIEW&>(header);
        note_state(change.iItem, change.iItem, change.uOldState, change.uNewState);
    } else if (static_cast<UINT>(header.code) == LVN_ODSTATECHANGED) {
        const auto& change = reinterpret_cast<const NMLVODSTATECHANGE&>(header);
        note_state(change.iFrom, change.iTo, change.uOldState, change.uNewState);
    } else {
        return false;
    }
    adopt_selection();
    return true;
}

void ListRowsMirror::note_state(std::int32_t first, std::int32_t last, UINT old_state, UINT new_state) {
    const UINT gained = new_state & ~old_state;
    const UINT lost = old_state & ~new_state;
    const auto update = [&](std::int32_t& row, UINT state) {
        const bool all_rows = first == -1;
        if (gained & state)
            row = last;
        else if ((lost & state) && (all_rows || (row >= first && row <= last)))
            row = -1;
    };
    update(selected_, LVIS_SELECTED);
    update(focused_, LVIS_FOCUSED);
}

void ListRowsMirror::adopt_selection() {
    // While changes wait to be mirrored the window's row numbers mean nothing.
    if (mirroring_ || has_changes() || selected_ >= rows_.count() || selected_ == rows_.selected())
        return;
    const Raised guard(adopting_);
    rows_.select(selected_);
}

void ListRowsMirror::announce_focus() const {
    if (GetFocus() == window_.handle())
        NotifyWinEvent(EVENT_OBJECT_FOCUS, window_.handle(), OBJID_CLIENT, focused_ + 1);
}

void ListRowsMirror::settle_scroll_bars() {
    if (!window_.handle())
        return;
    flush();
    const Raised guard(mirroring_);
    mirror_count();
    // Each of the two may be there only because the other takes its room.
    if (window_.has_style(WS_HSCROLL | WS_VSCROLL))
        ShowScrollBar(window_.handle(), SB_BOTH, FALSE);
    for (const ScrollBar& bar : {vertical_bar, horizontal_bar, vertical_bar})
        settle(window_, bar);
}

} // namespace vellora::win32
