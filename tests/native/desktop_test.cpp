// The simulated window system must behave like a real one where tests rely on it.
#include "support/headless/desktop.h"
#include "support/headless/window_hook.h"
#include "widgets/user32.h"

#include <gtest/gtest.h>

namespace vellora::test {

namespace {

/// A window that writes down what reaches it.
class Talking : public WindowOwner {
public:
    Talking(Desktop& desktop, std::string name, WindowHandle parent = 0) : name_(name), desktop_(desktop) {
        Desktop::Window window;
        window.name = std::move(name);
        window.parent = parent;
        window.owner = this;
        handle = desktop.create(window);
    }
    std::intptr_t handle_message(std::uint32_t message, std::uintptr_t wparam, std::intptr_t) override {
        const std::string other = desktop_.name(static_cast<WindowHandle>(wparam));
        if (message == message::kill_focus) {
            desktop_.journal().add(Journal::Kind::event, name_ + " loses to " + other);
        } else if (message == got_focus_message) {
            desktop_.journal().add(Journal::Kind::event, name_ + " gets from " + other);
        } else if (message == message::destroy) {
            desktop_.journal().add(Journal::Kind::event, name_ + " goes");
        }
        return 0;
    }
    void capture_lost() override { desktop_.journal().add(Journal::Kind::event, name_ + " loses the mouse"); }

    WindowHandle handle = 0;

private:
    std::string name_;
    Desktop& desktop_;
};

struct Screenful {
    Journal journal;
    Desktop desktop{journal};
    Talking form{desktop, "form"};
    Talking child{desktop, "child", form.handle};
    Talking other{desktop, "other", form.handle};
};

} // namespace

TEST(SimulatedDesktop, TellsTheLoserBeforeTheWinnerOfTheFocus) {
    Screenful screen;
    screen.desktop.set_focus(screen.child.handle);
    screen.desktop.set_focus(screen.other.handle);
    EXPECT_EQ(screen.journal.take_events(),
              (Lines{"child gets from none", "child loses to other", "other gets from child"}));
}

TEST(SimulatedDesktop, GivesTheFocusOfAHiddenWindowToItsParent) {
    Screenful screen;
    screen.desktop.set_focus(screen.child.handle);
    screen.desktop.show(screen.child.handle, false);
    EXPECT_EQ(screen.desktop.focus(), screen.form.handle);
}

TEST(SimulatedDesktop, RefusesTheFocusToDisabledWindows) {
    Screenful screen;
    screen.desktop.at(screen.child.handle).enabled = false;
    screen.desktop.set_focus(screen.child.handle);
    EXPECT_EQ(screen.desktop.focus(), 0);
}

TEST(SimulatedDesktop, DestroysChildrenWithTheirParent) {
    Screenful screen;
    screen.desktop.set_focus(screen.child.handle);
    screen.journal.take_all();
    screen.desktop.destroy(screen.form.handle);
    EXPECT_EQ(screen.journal.take_events(),
              (Lines{"child loses to none", "form goes", "child goes", "other goes"}));
    EXPECT_FALSE(screen.desktop.exists(screen.child.handle));
    EXPECT_EQ(screen.desktop.focus(), 0);
}

TEST(SimulatedDesktop, TakesTheMouseFromWhoHadIt) {
    Screenful screen;
    screen.desktop.set_capture(screen.child.handle);
    screen.desktop.set_capture(0);
    EXPECT_EQ(screen.journal.take_events(), Lines{"child loses the mouse"});
}

TEST(SimulatedDesktop, PutsChildrenWhereTheirParentsStand) {
    Screenful screen;
    screen.desktop.at(screen.form.handle).rect = {100, 50, 300, 200};
    screen.desktop.at(screen.child.handle).rect = {10, 20, 30, 40};
    const PixelRect rect = screen.desktop.screen_rect(screen.child.handle);
    EXPECT_EQ(rect.left, 110);
    EXPECT_EQ(rect.top, 70);
    EXPECT_EQ(rect.right, 130);
    EXPECT_EQ(rect.bottom, 90);
}

} // namespace vellora::test
