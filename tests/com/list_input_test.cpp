// What the user does in a list, as its listener hears it.
#include "com/support/list_window_test.h"

namespace vellora::test {
namespace {

using Heard = std::vector<std::string>;

class ListInputTest : public ListWindowTest {
protected:
    void notify_header(UINT code, int column) const {
        NMHEADERW notification{};
        notification.hdr.hwndFrom = header();
        notification.hdr.code = code;
        notification.iItem = column;
        send(WM_NOTIFY, 0, &notification);
    }
    void click(POINT point) const {
        // The release comes first: the window waits for it while it handles the press.
        PostMessageW(window(), WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
        press(WM_LBUTTONDOWN, point);
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageW(&message);
    }
};

TEST_F(ListInputTest, AClickComesOnceAfterTheSelection) {
    add_columns({u"a", u"b"});
    add_rows(3);
    show(300, 200);
    int selected = -1;
    recorder.meanwhile = [&] { selected = rows().selected(); };
    click(point_in(1, LVIR_LABEL));
    EXPECT_EQ(Heard{"click"}, recorder.heard);
    EXPECT_EQ(1, selected);
}

TEST_F(ListInputTest, AClickOnTheBlankAreaCounts) {
    add_columns({u"a"});
    add_rows(1);
    rows().select(0);
    show(300, 200);
    click({20, 150});
    EXPECT_EQ(Heard{"click"}, recorder.heard);
    EXPECT_EQ(-1, rows().selected());
}

TEST_F(ListInputTest, ADoubleClickIsAClick) {
    add_columns({u"a"});
    add_rows(3);
    show(300, 200);
    click(point_in(2, LVIR_LABEL));
    press(WM_LBUTTONDBLCLK, point_in(2, LVIR_LABEL));
    EXPECT_EQ((Heard{"click", "click"}), recorder.heard);
    EXPECT_EQ(2, rows().selected());
}

TEST_F(ListInputTest, AClickOnACheckBoxChecksFirstAndSelectsNothing) {
    add_columns({u"a"});
    add_rows(3);
    list->set_check_boxes(true);
    show(300, 200);
    click(point_in(1, LVIR_BOUNDS));
    EXPECT_EQ((Heard{"check 1", "click"}), recorder.heard);
    EXPECT_TRUE(rows().checked(1));
    EXPECT_EQ(-1, rows().selected());
    press(WM_LBUTTONDBLCLK, point_in(1, LVIR_BOUNDS));
    EXPECT_FALSE(rows().checked(1));
}

TEST_F(ListInputTest, TheSpaceBarChecksTheFocusedRow) {
    add_columns({u"a"});
    add_rows(3);
    list->set_check_boxes(true);
    rows().select(2);
    show(300, 200);
    send(WM_KEYDOWN, VK_SPACE);
    EXPECT_EQ((Heard{"key 32+0", "check 2"}), recorder.heard);
    EXPECT_TRUE(rows().checked(2));
}

TEST_F(ListInputTest, WithoutCheckBoxesTheSpaceBarChecksNothing) {
    add_rows(1);
    rows().select(0);
    show(300, 200);
    send(WM_KEYDOWN, VK_SPACE);
    EXPECT_EQ(Heard{"key 32+0"}, recorder.heard);
    EXPECT_FALSE(rows().checked(0));
}

TEST_F(ListInputTest, AKeySetToZeroIsSwallowed) {
    add_rows(5);
    show(200, 200);
    recorder.change_key = [](std::int16_t& code) { code = 0; };
    send(WM_KEYDOWN, VK_DOWN);
    send(WM_CHAR, '3', 1);
    EXPECT_EQ((Heard{"key 40+0", "press 51"}), recorder.heard);
    EXPECT_EQ(-1, rows().selected());
}

TEST_F(ListInputTest, AKeyMadeAnotherOneActsAsThat) {
    add_rows(5);
    show(200, 200);
    recorder.change_key = [](std::int16_t& code) { code = VK_END; };
    send(WM_KEYDOWN, VK_DOWN);
    EXPECT_EQ(4, rows().selected());
}

TEST_F(ListInputTest, EveryHeaderNotificationIsAColumnClick) {
    add_columns({u"a", u"b"});
    notify_header(HDN_ITEMCLICKW, 1);
    notify_header(HDN_ITEMCLICKW, 0);
    EXPECT_EQ((Heard{"column 2", "column 1"}), recorder.heard);
}

TEST_F(ListInputTest, AListenerMayEndTheListAtAnyMoment) {
    const std::vector<std::function<void()>> actions{
        [this] { send(WM_KEYDOWN, VK_DOWN); },
        [this] { send(WM_CHAR, 'a', 1); },
        [this] { press(WM_LBUTTONDBLCLK, point_in(0, LVIR_LABEL)); },
        [this] { press(WM_LBUTTONDOWN, point_in(0, LVIR_BOUNDS)); },
        [this] { notify_header(HDN_ITEMCLICKW, 0); },
    };
    for (const auto& act : actions) {
        renew_list();
        add_columns({u"a"});
        add_rows(3);
        list->set_check_boxes(true);
        show(300, 200);
        const HWND ended = window();
        recorder.heard.clear();
        recorder.meanwhile = [&] { list.reset(); };
        act();
        EXPECT_EQ(1u, recorder.heard.size());
        EXPECT_FALSE(IsWindow(ended));
        recorder.meanwhile = [] {};
    }
}

} // namespace
} // namespace vellora::test
