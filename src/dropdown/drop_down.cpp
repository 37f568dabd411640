#include "dropdown/drop_down.h"

#include "columns/column_auto_size.h"
#include "columns/column_set.h"
#include "dropdown/floating_window.h"
#include "dropdown/open_list.h"
#include "dropdown/placement.h"
#include "runtime/host_error.h"
#include "textfield/whole_text.h"
#include "widgets/form_watch.h"

#include <utility>

namespace vellora {

namespace {

// Lowers gbListOpen at the end of a closing, but only if it was this list's: a handler may open another one while a
// list closes that was never open for good.
class ListClosing {
public:
    ListClosing() = default;
    ~ListClosing() { gbListOpen = gbListOpen && !was_open_; }
    ListClosing(const ListClosing&) = delete;
    ListClosing& operator=(const ListClosing&) = delete;

private:
    bool was_open_ = gbListOpen;
};

} // namespace

DropDown::DropDown(ControlCore& core, Placement& placement, ColumnSet& columns, ColumnAutoSize& column_sizes,
                   FloatingWindow& window, FormWatch& form_watch)
    : core_(core), placement_(placement), columns_(columns), column_sizes_(column_sizes), window_(window),
      form_watch_(form_watch) {}

void DropDown::ShowList() { core_.parts.chkDropDown[0]->set_value(1); }

void DropDown::HideList() {
    subCloseDropDown();
    set_button_caption(false);
}

void DropDown::chkDropDown_Click(int Index) {
    if (click_busy_) {
        return;
    }
    const RaisedFlag busy(click_busy_);
    core_.parts.chkDropDown[0]->set_visible(false);
    core_.parts.chkDropDown[1]->set_visible(false);
    show_button_state(Index);
    try {
        open_or_leave();
    } catch (...) {
        subHideListView();
        settle_button();
        throw;
    }
    settle_button();
}

void DropDown::show_button_state(int Index) {
    CheckButton& decisive = *core_.parts.chkDropDown[0];
    CheckButton& other = *core_.parts.chkDropDown[1];
    if (core_.state.mlButtonStyle == vlToggle) {
        set_button_caption(decisive.value() == 1);
        decisive.set_visible(true);
    } else if (Index == 1) {
        decisive.set_value(0);
        decisive.set_visible(true);
    } else {
        other.set_value(0);
        other.set_visible(true);
    }
}

void DropDown::open_or_leave() {
    if (is_to_open()) {
        core_.parts.ListView1.renew_header_icons();
    }
    // The image list is the host's, whose code may have done anything.
    if (is_to_open()) {
        subShowListView();
    } else {
        subFocusTextBox();
    }
}

bool DropDown::is_to_open() const { return core_.parts.chkDropDown[0]->value() == 1 && !gbListOpen; }

// A click that opened nothing, because another list was open or the opening failed, must not leave a pressed button.
void DropDown::settle_button() {
    if (core_.state.mlStatic_hWnd == 0) {
        raise_button();
        set_button_caption(false);
    }
}

void DropDown::raise_button() {
    core_.parts.chkDropDown[0]->set_visible(true);
    core_.parts.chkDropDown[1]->set_visible(false);
    core_.parts.chkDropDown[0]->set_value(0);
    core_.parts.chkDropDown[1]->set_value(1);
}

void DropDown::set_button_caption(bool open) {
    if (core_.state.mlButtonStyle == vlToggle) {
        core_.parts.chkDropDown[0]->set_caption(open ? up_arrow : down_arrow);
    }
}

void DropDown::chkDropDown_MouseDown() { core_.state.mbDropButtonDown = true; }

void DropDown::chkDropDown_MouseUp() { core_.state.mbDropButtonDown = false; }

void DropDown::subShowListView() {
    const auto control = core_.user32.window_rect(core_.surface.window());
    if (!control || !core_.surface.shown()) {
        return;
    }
    Bounds bounds = placement_.place(*control);
    columns_.ensure_headers();
    sort_if_dirty();
    placement_.settle_headers();
    placement_.subSizeListView(bounds);
    size_columns(bounds);
    select_whole_text(core_.live_text_box());
    window_.subCreateDropDownWindow(bounds);
    const WindowHandle floating = core_.state.mlStatic_hWnd;
    if (floating == 0) {
        return;
    }
    form_watch_.watch(core_.site.form_window());
    // Before the event: while a handler takes its time, the container has to know already whose keys they are.
    core_.surface.announce(Announcement::list_opened_or_closed);
    if (core_.state.mlStatic_hWnd != floating) {
        return;
    }
    opening_reported_ = true;
    core_.events.drop_down(DropDownState::open);
    // The handler may have closed this list again, or even opened another one.
    if (core_.state.mlStatic_hWnd == floating) {
        gbListOpen = true;
    }
}

// Columns that fill or leave the list's width bring the horizontal scroll bar or take it away, and the list has to be
// taller or lower by it.
void DropDown::size_columns(Bounds& bounds) {
    const int scroll_bars_before = placement_.ListScrollBars();
    column_sizes_.size_for_opening();
    columns_.collapse_hidden_columns();
    if (placement_.ListScrollBars() != scroll_bars_before) {
        placement_.subSizeListView(bounds);
    }
}

void DropDown::sort_if_dirty() {
    if (core_.state.mbListDirty) {
        core_.parts.ListView1.refresh();
        core_.state.mbListDirty = false;
    }
}

void DropDown::subCloseDropDown() {
    // The button's own events take the focus from an open list; with the list closed there is none to take.
    const bool closed = core_.state.mlStatic_hWnd == 0;
    {
        const ChangedFlag quiet(click_busy_, click_busy_ || closed);
        raise_button();
    }
    subHideListView();
}

void DropDown::subHideListView() {
    if (core_.state.mlStatic_hWnd == 0) {
        return;
    }
    form_watch_.stop();
    window_.tear_down();
    core_.surface.announce(Announcement::list_opened_or_closed);
    const ListClosing closing;
    // A list that the focus change of its own opening closed has never been reported.
    if (std::exchange(opening_reported_, false)) {
        core_.events.drop_down(DropDownState::closed);
    }
}

void DropDown::subFocusTextBox() {
    // A control that is only being set up has no claim to the focus.
    if (focus_taken_elsewhere_ || core_.state.mbLoadingProperties) {
        return;
    }
    try {
        core_.live_text_box().focus();
    } catch (const HostError&) {
        // An invisible or disabled text box cannot take the focus, and nobody waits for it.
    }
}

void DropDown::list_lost_focus(WindowHandle gaining) {
    const ChangedFlag taken(focus_taken_elsewhere_, is_elsewhere(gaining));
    subCloseDropDown();
}

bool DropDown::is_elsewhere(WindowHandle window) const {
    const WindowHandle own = core_.surface.window();
    return window != 0 && !is_inside(window, own) && !is_inside(own, window);
}

bool DropDown::is_inside(WindowHandle window, WindowHandle ancestor) const {
    while (window != 0 && window != ancestor) {
        window = core_.user32.parent(window);
    }
    return window == ancestor;
}

void DropDown::UserControl_LostFocus() { subCloseDropDown(); }

void DropDown::UserControl_ExitFocus() {
    if (!core_.state.mbDropButtonDown) {
        core_.live_text_box().set_selection_length(0);
    }
}

void DropDown::abandon() {
    if (core_.state.mlStatic_hWnd == 0) {
        return;
    }
    form_watch_.stop();
    opening_reported_ = false;
    window_.tear_down();
    gbListOpen = false;
}

} // namespace vellora
