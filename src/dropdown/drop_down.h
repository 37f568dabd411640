// Opening and closing: what does it, in which order, and what keeps it from happening twice.
#pragma once

#include "control/core.h"

namespace vellora {

class ColumnAutoSize;
class ColumnSet;
class FloatingWindow;
class FormWatch;
class Placement;

class DropDown {
public:
    DropDown(ControlCore& core, Placement& placement, ColumnSet& columns, ColumnAutoSize& column_sizes,
             FloatingWindow& window, FormWatch& form_watch);

    /// Presses the drop button. An open list stays as it is.
    void ShowList();
    void HideList();

    /// A press of either button ended in a click, or its value was set.
    void chkDropDown_Click(int Index);
    void chkDropDown_MouseDown();
    void chkDropDown_MouseUp();

    void subShowListView();
    /// Shows the button raised, then closes the list if it is open.
    void subCloseDropDown();
    /// Closes the list; nothing when it is closed already.
    void subHideListView();
    /// Gives the text field the focus, if it can take it.
    void subFocusTextBox();

    /// The list lost the focus to `gaining` (0: to another program), so it closes. A window of the form that asked for
    /// the focus keeps it; otherwise the text field gets it.
    void list_lost_focus(WindowHandle gaining);
    void UserControl_LostFocus();
    void UserControl_ExitFocus();

    /// A list that was open when its instance ends leaves no window behind and raises nothing.
    void abandon();

private:
    void open_or_leave();
    bool is_to_open() const;
    void sort_if_dirty();
    void size_columns(Bounds& bounds);
    void show_button_state(int Index);
    void settle_button();
    void raise_button();
    void set_button_caption(bool open);
    bool is_elsewhere(WindowHandle window) const;
    bool is_inside(WindowHandle window, WindowHandle ancestor) const;

    ControlCore& core_;
    Placement& placement_;
    ColumnSet& columns_;
    ColumnAutoSize& column_sizes_;
    FloatingWindow& window_;
    FormWatch& form_watch_;
    bool click_busy_ = false;
    bool focus_taken_elsewhere_ = false;
    bool opening_reported_ = false;
};

} // namespace vellora
