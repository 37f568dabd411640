// The native drop button: what a press is, and what ends one without a click.
#include "com/support/peers_test.h"

#include "widgets/win32/check_button_peer.h"

#include <memory>

namespace vellora::test {
namespace {

using win32::CheckButtonPeer;

constexpr LPARAM inside = MAKELPARAM(5, 5);
constexpr LPARAM outside = MAKELPARAM(100, 100);

class Win32ButtonTest : public PeersTest {
protected:
    Win32ButtonTest() {
        button_->move({2400, 0, 240, 300});
        button_->set_visible(true);
        button_->listen(&journal_);
    }

    // Sent, not posted: a message loop would also bring in what the real mouse does.
    void send(UINT message, WPARAM wparam, LPARAM lparam) {
        SendMessageW(window_of(*button_), message, wparam, lparam);
    }
    void press() { send(WM_LBUTTONDOWN, MK_LBUTTON, inside); }
    void release(LPARAM where = inside) {
        if (button_) {
            send(WM_LBUTTONUP, 0, where);
        }
    }

    /// Leaves a click waiting in the queue that the mouse seems to have made.
    void click_by_mouse() {
        POINT point{7, 7};
        const LPARAM where = MAKELPARAM(point.x, point.y);
        ClientToScreen(window_of(*button_), &point);
        SetCursorPos(point.x, point.y);
        PostMessageW(window_of(*button_), WM_LBUTTONDOWN, MK_LBUTTON, where);
        PostMessageW(window_of(*button_), WM_LBUTTONUP, 0, where);
    }

    ButtonJournal journal_{lines_};
    std::unique_ptr<CheckButtonPeer> button_ = std::make_unique<CheckButtonPeer>(surface_, 7);
};

TEST_F(Win32ButtonTest, AReleaseInsideTogglesTheValue) {
    press();
    release();
    EXPECT_EQ(take_lines(), (Lines{"pressed 7", "released 7", "clicked 7"}));
    EXPECT_EQ(button_->value(), 1);
    press();
    release();
    EXPECT_EQ(button_->value(), 0);
}

TEST_F(Win32ButtonTest, APressTakesTheMouseAndThenTheFocus) {
    HWND focus_at_event = nullptr;
    HWND capture_at_event = nullptr;
    journal_.on_pressed = [&] {
        focus_at_event = GetFocus();
        capture_at_event = GetCapture();
    };
    press();
    EXPECT_EQ(capture_at_event, window_of(*button_));
    EXPECT_EQ(focus_at_event, other_);
    EXPECT_EQ(GetFocus(), window_of(*button_));
}

TEST_F(Win32ButtonTest, AReleaseOutsideIsNoClick) {
    press();
    send(WM_MOUSEMOVE, MK_LBUTTON, outside);
    EXPECT_FALSE(button_->face().pressed);
    release(outside);
    EXPECT_EQ(take_lines(), (Lines{"pressed 7", "released 7"}));
    EXPECT_EQ(button_->value(), 0);
}

TEST_F(Win32ButtonTest, LooksPressedWhileTheMouseIsDownOverIt) {
    press();
    EXPECT_TRUE(button_->face().pressed);
    send(WM_MOUSEMOVE, MK_LBUTTON, outside);
    EXPECT_FALSE(button_->face().pressed);
    send(WM_MOUSEMOVE, MK_LBUTTON, inside);
    EXPECT_TRUE(button_->face().pressed);
}

TEST_F(Win32ButtonTest, LosingTheMouseEndsThePressWithoutAClick) {
    press();
    ReleaseCapture();
    release();
    EXPECT_EQ(take_lines(), (Lines{"pressed 7", "released 7"}));
}

TEST_F(Win32ButtonTest, BeingHiddenEndsThePressWithoutAClick) {
    press();
    button_->set_visible(false);
    button_->set_visible(true);
    release();
    EXPECT_EQ(take_lines(), (Lines{"pressed 7", "released 7"}));
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(Win32ButtonTest, BeingDisabledEndsThePressWithoutAClick) {
    press();
    button_->set_enabled(false);
    release();
    EXPECT_EQ(take_lines(), (Lines{"pressed 7", "released 7"}));
}

TEST_F(Win32ButtonTest, AnEventThatFreesTheMouseLeavesTheFocusWhereItIs) {
    journal_.on_pressed = [] { ReleaseCapture(); };
    press();
    release();
    EXPECT_EQ(take_lines(), (Lines{"pressed 7", "released 7"}));
    EXPECT_EQ(GetFocus(), other_);
}

TEST_F(Win32ButtonTest, AHiddenButtonTakesNoPress) {
    button_->set_visible(false);
    press();
    release();
    EXPECT_EQ(take_lines(), Lines{});
}

TEST_F(Win32ButtonTest, APressMadeBeforeTheButtonCameUpIsOutdated) {
    button_->set_value(1);
    click_by_mouse();
    button_->set_value(0);
    take_lines();
    pump();
    EXPECT_EQ(take_lines(), Lines{});
    EXPECT_EQ(button_->value(), 0);
}

TEST_F(Win32ButtonTest, APressMadeBeforeTheButtonWentDownBringsItUpAgain) {
    click_by_mouse();
    button_->set_value(1);
    take_lines();
    pump();
    EXPECT_EQ(take_lines(), (Lines{"pressed 7", "released 7", "clicked 7"}));
    EXPECT_EQ(button_->value(), 0);
}

TEST_F(Win32ButtonTest, OtherButtonsArePressesWithoutAClick) {
    send(WM_RBUTTONDOWN, MK_RBUTTON, inside);
    send(WM_RBUTTONUP, 0, inside);
    EXPECT_EQ(take_lines(), (Lines{"pressed 7", "released 7"}));
    EXPECT_EQ(GetFocus(), other_);
}

TEST_F(Win32ButtonTest, TheSpaceBarTogglesOnItsWayUp) {
    SetFocus(window_of(*button_));
    send(WM_KEYDOWN, VK_SPACE, 1);
    EXPECT_TRUE(button_->face().pressed);
    EXPECT_EQ(button_->value(), 0);
    send(WM_KEYUP, VK_SPACE, 1);
    EXPECT_EQ(button_->value(), 1);
    EXPECT_EQ(take_lines(), Lines{"clicked 7"});
}

TEST_F(Win32ButtonTest, AnotherValueIsAClickAndTheSameIsNone) {
    button_->set_value(1);
    button_->set_value(1);
    EXPECT_EQ(take_lines(), Lines{"clicked 7"});
}

TEST_F(Win32ButtonTest, LooksPressedAtTheValueItWasMadeFor) {
    CheckButtonPeer second(surface_, 1, 0);
    EXPECT_TRUE(second.face().pressed);
    second.set_value(1);
    EXPECT_FALSE(second.face().pressed);
    EXPECT_FALSE(button_->face().pressed);
    button_->set_value(1);
    EXPECT_TRUE(button_->face().pressed);
}

TEST_F(Win32ButtonTest, PaintsItsOwnColors) {
    button_->set_back_color(0x0000FFFF);
    button_->set_fore_color(0x000000FF);
    EXPECT_EQ(pixel(window_of(*button_), 4, 4), COLORREF{0x0000FFFF});
    EXPECT_EQ(raised([&] { button_->set_back_color(0x03000000); }), error_number::invalid_property_value);
    EXPECT_EQ(button_->back_color(), 0x0000FFFFU);
}

TEST_F(Win32ButtonTest, MayBeEndedByEachOfItsEvents) {
    std::function<void()>* const reactions[] = {&journal_.on_pressed, &journal_.on_released,
                                                &journal_.on_clicked};
    for (std::function<void()>* reaction : reactions) {
        journal_.on_pressed = journal_.on_released = journal_.on_clicked = nullptr;
        button_ = std::make_unique<CheckButtonPeer>(surface_, 7);
        button_->move({2400, 0, 240, 300});
        button_->set_visible(true);
        button_->listen(&journal_);
        *reaction = [&] { button_.reset(); };
        press();
        release();
        EXPECT_EQ(button_, nullptr);
    }
}

} // namespace
} // namespace vellora::test
