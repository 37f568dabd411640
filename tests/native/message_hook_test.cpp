// Replacing a window's procedure to see its messages, and what the open list makes of them.
#include "dropdown/clsMsgHandler.h"
#include "support/headless/failure.h"
#include "support/headless/headless_control.h"
#include "support/headless/user.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace vellora::test {

namespace {

constexpr std::uint32_t some_message = 0x0400;
constexpr std::uint32_t other_message = 0x0401;

/// Writes every message down and answers as the test wants.
class Watcher : public MessageRecievedListener {
public:
    void MsgHandler_MessageRecieved(std::uint32_t uMsg, std::uintptr_t wParam, std::intptr_t lParam,
                                    std::intptr_t& lRetVal) override {
        seen.push_back(std::to_string(uMsg) + " " + std::to_string(wParam) + " " + std::to_string(lParam));
        if (answer) {
            answer(lRetVal);
        }
    }

    Lines seen;
    std::function<void(std::intptr_t& lRetVal)> answer;
};

/// A window that counts what reaches its own procedure.
class CountingWindow : public WindowOwner {
public:
    explicit CountingWindow(Desktop& desktop) {
        Desktop::Window window;
        window.name = "watched";
        window.owner = this;
        handle = desktop.create(window);
    }
    std::intptr_t handle_message(std::uint32_t, std::uintptr_t, std::intptr_t) override {
        ++count;
        return 77;
    }

    WindowHandle handle = 0;
    int count = 0;
};

struct Hooked : World {
    std::intptr_t send(std::uint32_t uMsg) { return desktop.send(watched.handle, uMsg, 1, 2); }
    WindowProcedure current() { return desktop.at(watched.handle).procedure; }

    Watcher watcher;
    CountingWindow watched{desktop};
    std::unique_ptr<clsMsgHandler> handler = std::make_unique<clsMsgHandler>(message_module, watcher);
};

/// An open list of three columns.
struct OpenList : HeadlessControl {
    OpenList() {
        columns().put_Columns(3);
        drop_down().ShowList();
        journal().take_all();
    }
    User user{*this};
};

} // namespace

TEST(WatchedMessages, AreListedOnce) {
    Hooked hooked;
    EXPECT_TRUE(hooked.handler->AddMessage(8));
    EXPECT_TRUE(hooked.handler->AddMessage(78));
    EXPECT_FALSE(hooked.handler->AddMessage(8));
    EXPECT_EQ(hooked.handler->mlMessageCount(), 2);
}

TEST(WatchedMessages, CannotBeAddedWhileHooked) {
    Hooked hooked;
    hooked.handler->AddMessage(some_message);
    hooked.handler->SetHook(hooked.watched.handle);
    EXPECT_FALSE(hooked.handler->AddMessage(other_message));
    EXPECT_EQ(hooked.handler->mlMessageCount(), 1);
    hooked.handler->UnSetHook();
    EXPECT_TRUE(hooked.handler->AddMessage(other_message));
}

TEST(Hook, WithoutWatchedMessagesInstallsNothing) {
    Hooked hooked;
    hooked.handler->SetHook(hooked.watched.handle);
    EXPECT_FALSE(hooked.handler->mbHooked());
    EXPECT_EQ(hooked.current(), procedure::own);
    EXPECT_EQ(hooked.journal.take_all(), Lines{});
}

TEST(Hook, ReplacesTheProcedureAndPutsItBack) {
    Hooked hooked;
    hooked.handler->AddMessage(some_message);
    hooked.handler->SetHook(hooked.watched.handle);
    EXPECT_TRUE(hooked.handler->mbHooked());
    EXPECT_EQ(hooked.handler->mlHookedWnd(), hooked.watched.handle);
    EXPECT_EQ(hooked.current(), procedure::replaced);
    hooked.handler->UnSetHook();
    EXPECT_FALSE(hooked.handler->mbHooked());
    EXPECT_EQ(hooked.current(), procedure::own);
    hooked.handler->UnSetHook();
    EXPECT_EQ(hooked.journal.take_all(), (Lines{"hook watched", "unhook watched"}));
}

TEST(Hook, KeepsTheFirstPreviousProcedureForGood) {
    Hooked hooked;
    hooked.handler->AddMessage(some_message);
    hooked.handler->SetHook(hooked.watched.handle);
    hooked.handler->UnSetHook();
    EXPECT_EQ(hooked.message_module.mlPrevWndProc(), procedure::own);
    hooked.desktop.at(hooked.watched.handle).procedure = 0x00402000;
    hooked.handler->SetHook(hooked.watched.handle);
    EXPECT_EQ(hooked.message_module.mlPrevWndProc(), procedure::own);
    hooked.handler->UnSetHook();
    EXPECT_EQ(hooked.current(), procedure::own);
}

TEST(Hook, OfNoWindowReplacesNothing) {
    Hooked hooked;
    hooked.handler->AddMessage(some_message);
    hooked.handler->SetHook(0);
    EXPECT_EQ(hooked.journal.take_all(), Lines{});
    EXPECT_EQ(hooked.message_module.mlPrevWndProc(), 0);
}

TEST(Hook, ReportsWatchedMessagesBeforeTheWindowSeesThem) {
    Hooked hooked;
    hooked.handler->AddMessage(some_message);
    hooked.handler->SetHook(hooked.watched.handle);
    int count_when_told = -1;
    hooked.watcher.answer = [&](std::intptr_t&) { count_when_told = hooked.watched.count; };
    EXPECT_EQ(hooked.send(some_message), 77);
    EXPECT_EQ(hooked.watcher.seen, Lines{"1024 1 2"});
    EXPECT_EQ(count_when_told, 0);
    EXPECT_EQ(hooked.watched.count, 1);
}

TEST(Hook, LeavesOtherMessagesToTheWindow) {
    Hooked hooked;
    hooked.handler->AddMessage(some_message);
    hooked.handler->SetHook(hooked.watched.handle);
    EXPECT_EQ(hooked.send(other_message), 77);
    EXPECT_EQ(hooked.watcher.seen, Lines{});
    EXPECT_EQ(hooked.watched.count, 1);
}

TEST(Hook, LetsAnAnswerStandInsteadOfTheWindows) {
    Hooked hooked;
    hooked.handler->AddMessage(some_message);
    hooked.handler->SetHook(hooked.watched.handle);
    hooked.watcher.answer = [](std::intptr_t& lRetVal) { lRetVal = 5; };
    EXPECT_EQ(hooked.send(some_message), 5);
    EXPECT_EQ(hooked.watched.count, 0);
}

TEST(Hook, LeavesMessagesSentMeanwhileToTheWindow) {
    Hooked hooked;
    hooked.handler->AddMessage(some_message);
    hooked.handler->SetHook(hooked.watched.handle);
    hooked.watcher.answer = [&](std::intptr_t&) { EXPECT_EQ(hooked.send(some_message), 77); };
    hooked.send(some_message);
    EXPECT_EQ(hooked.watcher.seen.size(), 1U);
    EXPECT_EQ(hooked.watched.count, 2);
    hooked.send(some_message);
    EXPECT_EQ(hooked.watcher.seen.size(), 2U);
}

TEST(Hook, GoesWithItsWindowUnreported) {
    Hooked hooked;
    hooked.handler->AddMessage(message::destroy);
    hooked.handler->SetHook(hooked.watched.handle);
    hooked.desktop.destroy(hooked.watched.handle);
    EXPECT_EQ(hooked.watcher.seen, Lines{});
    EXPECT_FALSE(hooked.handler->mbHooked());
    EXPECT_EQ(hooked.watched.count, 1);
}

TEST(Hook, GoesWithItsHandler) {
    Hooked hooked;
    hooked.handler->AddMessage(some_message);
    hooked.handler->SetHook(hooked.watched.handle);
    hooked.handler.reset();
    EXPECT_EQ(hooked.current(), procedure::own);
    EXPECT_EQ(hooked.send(some_message), 77);
    EXPECT_EQ(hooked.watcher.seen, Lines{});
}

TEST(Hook, ForwardsToTheHandlerThatHookedLast) {
    Hooked hooked;
    Watcher second_watcher;
    CountingWindow second_window(hooked.desktop);
    clsMsgHandler second(hooked.message_module, second_watcher);
    hooked.handler->AddMessage(some_message);
    second.AddMessage(some_message);
    hooked.handler->SetHook(hooked.watched.handle);
    second.SetHook(second_window.handle);
    hooked.send(some_message);
    EXPECT_EQ(hooked.watcher.seen, Lines{});
    EXPECT_EQ(second_watcher.seen.size(), 1U);
    second.UnSetHook();
    hooked.handler->UnSetHook();
}

TEST(Hook, NamesTheProceduresAnErrorPassedThrough) {
    Hooked hooked;
    hooked.handler->AddMessage(some_message);
    hooked.handler->SetHook(hooked.watched.handle);
    hooked.watcher.answer = [](std::intptr_t&) { throw HostError(1000, u"elsewhere", u"what went wrong"); };
    EXPECT_EQ(failure_of([&] { hooked.send(some_message); }),
              (Failure{1000, u"modMessageHandler.MessagePassed",
                       u"modMessageHandler.MessagePassed:clsMsgHandler.CheckMessage:what went wrong"}));
    EXPECT_EQ(failure_of([&] { hooked.handler->CheckMessage(some_message, 0, 0); }),
              (Failure{1000, u"clsMsgHandler.CheckMessage", u"clsMsgHandler.CheckMessage:what went wrong"}));
    hooked.watcher.answer = nullptr;
    EXPECT_EQ(hooked.send(some_message), 77);
    EXPECT_EQ(hooked.watcher.seen.size(), 3U);
}

TEST(OpenListMessages, AreSeenOnlyWhileItIsOpen) {
    HeadlessControl combo;
    combo.columns().put_Columns(2);
    EXPECT_EQ(combo.desktop().at(combo.list_view.window()).procedure, procedure::own);
    combo.drop_down().ShowList();
    EXPECT_EQ(combo.desktop().at(combo.list_view.window()).procedure, procedure::replaced);
    combo.drop_down().HideList();
    EXPECT_EQ(combo.desktop().at(combo.list_view.window()).procedure, procedure::own);
    User(combo).drop_header();
    EXPECT_EQ(combo.journal().take_events(), (Lines{"DropDown(open)", "DropDown(closed)"}));
}

TEST(OpenListMessages, KeepANewOrderFromColumnsMadeMeanwhile) {
    HeadlessControl combo;
    combo.columns().put_Columns(3);
    combo.drop_down().ShowList();
    User user(combo);
    EXPECT_TRUE(user.drop_header());
    combo.events.on_column_reorder = [&] { combo.columns().put_Columns(2); };
    EXPECT_FALSE(user.drop_header());
    combo.events.on_column_reorder = [&] { combo.columns().put_ColumnWidth(1, 100); };
    EXPECT_TRUE(user.drop_header());
}

TEST(OpenListMessages, TellOfADraggedHeader) {
    OpenList combo;
    combo.user.drop_header();
    EXPECT_EQ(combo.journal().take_events(), Lines{"ColumnReorder"});
    EXPECT_EQ(combo.desktop().focus(), combo.list_view.window());
}

TEST(OpenListMessages, OfADividerRefuseHiddenAndLockedColumns) {
    OpenList combo;
    combo.columns().put_ColumnHidden(2, true);
    combo.columns().put_ColumnLocked(3, true);
    for (const std::int32_t code : {-306, -326}) {
        EXPECT_TRUE(combo.user.drag_divider(1, code)) << code;
        EXPECT_FALSE(combo.user.drag_divider(2, code)) << code;
        EXPECT_FALSE(combo.user.drag_divider(3, code)) << code;
    }
}

TEST(OpenListMessages, OfADoubleClickedDividerReachTheListOnlyForFreeColumns) {
    OpenList combo;
    combo.columns().put_ColumnLocked(2, true);
    for (const std::int32_t code : {-305, -325}) {
        combo.list_view.notifications_seen = 0;
        EXPECT_FALSE(combo.user.drag_divider(2, code)) << code;
        EXPECT_EQ(combo.list_view.notifications_seen, 0) << code;
        EXPECT_TRUE(combo.user.drag_divider(1, code)) << code;
        EXPECT_GT(combo.list_view.notifications_seen, 0) << code;
    }
}

TEST(OpenListMessages, OfADividerAskWhatIsUnderTheCursor) {
    OpenList combo;
    combo.desktop().cursor = {321, 123};
    combo.user.drag_divider(1);
    EXPECT_EQ(combo.user32.hit_point.x, 321);
    EXPECT_EQ(combo.user32.hit_point.y, 123);
}

TEST(OpenListMessages, OfADividerBesideAllColumnsAreASubscriptOutOfRange) {
    OpenList combo;
    const Failure expected{
        9, u"modMessageHandler.MessagePassed",
        u"modMessageHandler.MessagePassed:clsMsgHandler.CheckMessage:Subscript out of range"};
    EXPECT_EQ(failure_of([&] { combo.user.drag_divider(0); }), expected);
    EXPECT_EQ(failure_of([&] { combo.user.drag_divider(51); }), expected);
    EXPECT_EQ(failure_of([&] { combo.user.drag_divider(50); }), no_failure);
}

TEST(OpenListMessages, GoToTheListOnceWhenItAnswersAndTwiceWhenItDoesNot) {
    OpenList combo;
    combo.user.drag_divider(1);
    EXPECT_EQ(combo.list_view.notifications_seen, 2);
    combo.list_view.notify_answer = 7;
    combo.list_view.notifications_seen = 0;
    combo.user.drag_divider(1);
    EXPECT_EQ(combo.list_view.notifications_seen, 1);
}

TEST(OpenListMessages, WithoutAHeaderMeanNothing) {
    OpenList combo;
    combo.columns().put_ColumnLocked(1, true);
    combo.list_view.without_header = true;
    EXPECT_TRUE(combo.user.drag_divider(1));
    combo.user.drop_header();
    EXPECT_EQ(combo.journal().take_events(), Lines{});
}

TEST(OpenListMessages, OfLosingTheFocusCloseTheList) {
    OpenList combo;
    combo.user.click_elsewhere();
    EXPECT_EQ(combo.journal().take_events(), Lines{"DropDown(closed)"});
}

TEST(OpenListMessages, OfOtherNotificationsChangeNothing) {
    OpenList combo;
    combo.columns().put_ColumnLocked(1, true);
    EXPECT_TRUE(combo.user.drag_divider(1, -307));
    EXPECT_EQ(combo.journal().take_events(), Lines{});
}

} // namespace vellora::test
