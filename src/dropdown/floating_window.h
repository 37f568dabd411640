// The window the drop-down floats in: made at each opening, filled with the list, emptied and destroyed at each
// closing.
#pragma once

#include "control/core.h"

namespace vellora {

class clsMsgHandler;
class Placement;
class ResizeFrame;
class Selection;

class FloatingWindow {
public:
    FloatingWindow(ControlCore& core, Placement& placement, ResizeFrame& frame, Selection& selection,
                   clsMsgHandler& MsgHandler);

    /// Makes the window at `bounds` (screen, twips), moves the list into it, gives it the focus and hooks it. Leaves
    /// mlStatic_hWnd 0 and everything where it was when the system makes no window.
    void subCreateDropDownWindow(const Bounds& bounds);
    /// Takes the hook off, brings frame and list back into the control, hidden, and destroys the window.
    void tear_down();

private:
    void bring_list_in();
    void settle_selection();
    void make_room_for_scroll_bar(PixelRect& rect);
    void add_resize_frame(const PixelRect& rect);
    void keep_caption_active();
    void take_frame_back(WindowHandle floating);

    ControlCore& core_;
    Placement& placement_;
    ResizeFrame& frame_;
    Selection& selection_;
    clsMsgHandler& MsgHandler_;
};

} // namespace vellora
