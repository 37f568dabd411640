// A control whose drop-down is worth opening: rows in one column that is narrow enough for no scroll bar. It
// stands at 100,200 on the screen and is 200 pixels wide and 21 high; a pixel is 15 twips, a row 17 pixels, a
// header 20, a scroll bar 17.
#pragma once

#include "support/headless/headless_control.h"
#include "support/headless/user.h"

#include <string>

namespace vellora::test {

/// The events of an opening, of a closing, and of both.
inline const Lines opened{"DropDown(open)"};
inline const Lines closed{"DropDown(closed)"};
inline const Lines opened_and_closed{"DropDown(open)", "DropDown(closed)"};

class DropDownCombo : public HeadlessControl {
public:
    explicit DropDownCombo(int rows = 3) { fill(rows); }
    explicit DropDownCombo(vlButtonStyles style, Mode mode = Mode::run) : HeadlessControl(mode) {
        state().mlButtonStyle = style;
        fill(3);
    }
    DropDownCombo(World& world, const std::string& prefix) : HeadlessControl(world, Mode::run, prefix) {
        fill(3);
    }

    bool is_open() { return state().mlStatic_hWnd != 0; }
    PixelRect popup() { return desktop().screen_rect(state().mlStatic_hWnd); }
    PixelRect list_in_popup() { return desktop().at(list_view.window()).rect; }

    PixelRect open() {
        drop_down().ShowList();
        return popup();
    }
    std::int32_t open_height() {
        const PixelRect rect = open();
        return rect.bottom - rect.top;
    }

    /// What the eye sees of the button: pressed or raised, in toggle style with its arrow (6 down, 5 up).
    std::string button_look();
    /// Whether the list can be opened and closed again, and leaves nothing behind: the last word after any
    /// misbehaviour. Takes the DropDown handler away.
    void expect_in_order();

    User user{*this};

private:
    void fill(int rows);
};

} // namespace vellora::test
