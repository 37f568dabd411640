// The list as a widget: its place, its columns, its selection and what the user does in it, on a real window.
#include "com/support/list_window_test.h"

#include "runtime/host_error.h"
#include "widgets/win32/screen_metrics.h"

namespace vellora::test {
namespace {

class ListViewPeerTest : public ListWindowTest {
protected:
    const float pixel = win32::twips_x(1);

    DWORD scroll_bars() const {
        return static_cast<DWORD>(GetWindowLongPtrW(window(), GWL_STYLE)) & (WS_HSCROLL | WS_VSCROLL);
    }
};

TEST_F(ListViewPeerTest, StartsHiddenEnabledAndEmpty) {
    EXPECT_FALSE(list->visible());
    EXPECT_TRUE(list->enabled());
    EXPECT_EQ(0, list->header_count());
    EXPECT_EQ(0, send(LVM_GETITEMCOUNT));
    EXPECT_EQ(-1, selected_by_message());
}

TEST_F(ListViewPeerTest, SitsOnWholePixels) {
    list->move({0.4f * pixel, 0.6f * pixel, 66.7f * pixel, 133.9f * pixel});
    const Bounds bounds = list->bounds();
    EXPECT_EQ(0 * pixel, bounds.left);
    EXPECT_EQ(1 * pixel, bounds.top);
    EXPECT_EQ(67 * pixel, bounds.width);
    EXPECT_EQ(134 * pixel, bounds.height);
}

TEST_F(ListViewPeerTest, RowHeightIsTheOneOfTheWindowAlsoWithoutRows) {
    add_columns({u"a"});
    const float empty = list->row_height();
    add_rows(3);
    RECT first{};
    first.left = LVIR_BOUNDS;
    ASSERT_TRUE(send(LVM_GETITEMRECT, 0, &first));
    EXPECT_EQ(static_cast<float>(first.bottom - first.top) * pixel, list->row_height());
    EXPECT_EQ(list->row_height(), empty);
}

TEST_F(ListViewPeerTest, HeadersKeepTextWidthAndTag) {
    add_columns({u"one", u"two"});
    list->set_header_width(2, 200 * pixel);
    list->set_header_tag(2, u"icon");
    list->set_header_text(1, u"first");
    EXPECT_EQ(2, list->header_count());
    EXPECT_EQ(u"first", list->header_text(1));
    EXPECT_EQ(u"two", list->header_text(2));
    EXPECT_EQ(200 * pixel, list->header_width(2));
    EXPECT_EQ(u"icon", list->header_tag(2));
    EXPECT_EQ(u"", list->header_tag(1));
    list->clear_headers();
    EXPECT_EQ(0, list->header_count());
    EXPECT_EQ(0, SendMessageW(header(), HDM_GETITEMCOUNT, 0, 0));
}

TEST_F(ListViewPeerTest, RefusesHeadersThatDoNotExist) {
    add_columns({u"one"});
    for (const std::int32_t column : {-1, 0, 2, 1000}) {
        EXPECT_EQ(35600, error_raised_by([&] { list->header_text(column); })) << column;
        EXPECT_EQ(35600, error_raised_by([&] { list->set_header_text(column, u"x"); })) << column;
        EXPECT_EQ(35600, error_raised_by([&] { list->header_width(column); })) << column;
        EXPECT_EQ(35600, error_raised_by([&] { list->set_header_width(column, 10); })) << column;
        EXPECT_EQ(35600, error_raised_by([&] { list->header_tag(column); })) << column;
        EXPECT_EQ(35600, error_raised_by([&] { list->set_header_tag(column, u"x"); })) << column;
    }
    EXPECT_EQ(380, error_raised_by([&] { list->set_header_width(1, -1); }));
}

TEST_F(ListViewPeerTest, RefusesRowsAndColoursThatDoNotExist) {
    add_rows(2);
    EXPECT_EQ(35600, error_raised_by([&] { list->ensure_visible(-1); }));
    EXPECT_EQ(35600, error_raised_by([&] { list->ensure_visible(2); }));
    EXPECT_EQ(0, error_raised_by([&] { list->ensure_visible(1); }));
    EXPECT_EQ(380, error_raised_by([&] { list->set_fore_color(0xFF000000u); }));
    EXPECT_EQ(380, error_raised_by([&] { list->set_back_color(0xFF000000u); }));
}

TEST_F(ListViewPeerTest, ColoursReachTheWindow) {
    list->set_fore_color(0x000000FFu);
    list->set_back_color(0x80000000u + COLOR_BTNFACE);
    EXPECT_EQ(RGB(255, 0, 0), static_cast<COLORREF>(send(LVM_GETTEXTCOLOR)));
    EXPECT_EQ(GetSysColor(COLOR_BTNFACE), static_cast<COLORREF>(send(LVM_GETBKCOLOR)));
    EXPECT_EQ(0x80000000u + COLOR_BTNFACE, list->back_color());
}

TEST_F(ListViewPeerTest, StylesAreReadBackFromTheWindow) {
    for (const bool on : {true, false}) {
        list->set_check_boxes(on);
        list->set_grid_lines(on);
        list->set_allow_column_reorder(on);
        list->set_hide_column_headers(on);
        EXPECT_EQ(on, list->check_boxes());
        EXPECT_EQ(on, list->grid_lines());
        EXPECT_EQ(on, list->allow_column_reorder());
        EXPECT_EQ(on, list->hide_column_headers());
    }
}

TEST_F(ListViewPeerTest, HiddenHeadersGiveTheirRoomToTheRows) {
    add_columns({u"a"});
    add_rows(3);
    show(200, 200);
    const LONG below_header = point_in(0, LVIR_BOUNDS).y;
    list->set_hide_column_headers(true);
    EXPECT_LT(point_in(0, LVIR_BOUNDS).y, below_header);
    EXPECT_FALSE(IsWindowVisible(header()));
    list->set_hide_column_headers(false);
    EXPECT_EQ(below_header, point_in(0, LVIR_BOUNDS).y);
    EXPECT_TRUE(IsWindowVisible(header()));
}

TEST_F(ListViewPeerTest, ScrollBarsComeAndGoWithSizeRowsAndColumns) {
    add_columns({u"a", u"b"});
    add_rows(20);
    list->move({0, 0, 300 * pixel, 100 * pixel});
    EXPECT_EQ(WS_VSCROLL, scroll_bars());
    list->move({0, 0, 150 * pixel, 100 * pixel});
    EXPECT_EQ(WS_VSCROLL | WS_HSCROLL, scroll_bars());
    list->set_header_width(1, 10 * pixel);
    EXPECT_EQ(WS_VSCROLL, scroll_bars());
    list->move({0, 0, 300 * pixel, 400 * pixel});
    EXPECT_EQ(0u, scroll_bars());
    list->set_header_width(1, 600 * pixel);
    EXPECT_EQ(WS_HSCROLL, scroll_bars());
    rows().clear();
    list->clear_headers();
    list->move({0, 0, 150 * pixel, 100 * pixel});
    EXPECT_EQ(0u, scroll_bars());
}

TEST_F(ListViewPeerTest, ShowingManyRowsAsksForNoMoreThanIsSeen) {
    add_columns({u"a"});
    add_rows(40);
    show(200, 200);
    const int few = parent.notifications(LVN_GETDISPINFOW);
    ASSERT_GT(few, 0);
    list->set_visible(false);
    add_rows(20000);
    show(200, 200);
    EXPECT_LE(parent.notifications(LVN_GETDISPINFOW), 2 * few);
}

TEST_F(ListViewPeerTest, SortsBeforeItIsShownAndNotBefore) {
    rows().set_sorted(true);
    add_row({u"b"});
    add_row({u"a"});
    EXPECT_EQ(u"b", text_by_message(0, 0));
    show(200, 200);
    EXPECT_EQ(u"a", text_by_message(0, 0));
    EXPECT_EQ(u"a", rows().text(0, 0));
}

TEST_F(ListViewPeerTest, SortsBeforeItIsPainted) {
    rows().set_sorted(true);
    show(200, 200);
    add_row({u"b"});
    add_row({u"a"});
    EXPECT_EQ(u"b", rows().text(0, 0));
    UpdateWindow(window());
    EXPECT_EQ(u"a", rows().text(0, 0));
}

TEST_F(ListViewPeerTest, EnsureVisibleScrollsToTheRow) {
    add_columns({u"a"});
    add_rows(500);
    show(200, 200);
    list->ensure_visible(400);
    EXPECT_GT(send(LVM_GETTOPINDEX), 300);
    EXPECT_LE(send(LVM_GETTOPINDEX), 400);
    list->ensure_visible(0);
    EXPECT_EQ(0, send(LVM_GETTOPINDEX));
}

TEST_F(ListViewPeerTest, EnsureVisibleMeansTheRowNotItsPlace) {
    add_columns({u"a"});
    add_rows(500);
    add_row({u"!"});
    list->ensure_visible(500);
    rows().set_sorted(true);
    show(200, 200);
    EXPECT_EQ(u"!", text_by_message(0, 0));
    EXPECT_EQ(0, send(LVM_GETTOPINDEX));
    list->ensure_visible(499);
    rows().remove(499);
    EXPECT_EQ(0, send(LVM_GETTOPINDEX));
}

// ---- Selection ----

TEST_F(ListViewPeerTest, TheWindowFollowsTheSelectionOfTheRows) {
    add_rows(5);
    rows().select(3);
    EXPECT_EQ(3, selected_by_message());
    EXPECT_EQ(3, send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED));
    rows().remove(0);
    EXPECT_EQ(2, selected_by_message());
    rows().select(-1);
    EXPECT_EQ(-1, selected_by_message());
    EXPECT_EQ(-1, send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED));
    rows().select(1);
    rows().clear();
    EXPECT_EQ(-1, selected_by_message());
    EXPECT_EQ(-1, rows().selected());
}

TEST_F(ListViewPeerTest, KeysMoveTheSelection) {
    add_rows(50);
    show(200, 200);
    send(WM_KEYDOWN, VK_DOWN);
    EXPECT_EQ(0, rows().selected());
    send(WM_KEYDOWN, VK_DOWN);
    EXPECT_EQ(1, rows().selected());
    send(WM_KEYDOWN, VK_END);
    EXPECT_EQ(49, rows().selected());
    send(WM_KEYDOWN, VK_HOME);
    EXPECT_EQ(0, rows().selected());
    send(WM_KEYDOWN, VK_NEXT);
    EXPECT_GT(rows().selected(), 3);
}

TEST_F(ListViewPeerTest, KeysGoOnFromTheRowThatCodeSelected) {
    add_rows(50);
    show(200, 200);
    rows().select(20);
    send(WM_KEYDOWN, VK_DOWN);
    EXPECT_EQ(21, rows().selected());
}

TEST_F(ListViewPeerTest, TypingFindsTheRowThatBeginsSo) {
    add_row({u"Alpha"});
    add_row({u"beta"});
    add_row({u"Gamma"});
    show(200, 200);
    send(WM_CHAR, 'g', 1);
    EXPECT_EQ(2, rows().selected());
}

TEST_F(ListViewPeerTest, KeepsHearingOfItsSelectionInAnotherParent) {
    RoutingWindow other;
    add_rows(3);
    SetParent(window(), other.handle());
    show(200, 200);
    send(WM_KEYDOWN, VK_DOWN);
    EXPECT_EQ(0, rows().selected());
    SetParent(window(), parent.handle());
}

// ---- Its life ----

TEST_F(ListViewPeerTest, OutlivesItsWindow) {
    add_columns({u"a"});
    add_rows(3);
    show(300, 200);
    parent.destroy();
    EXPECT_EQ(0, list->window());
    rows().select(1);
    add_rows(2);
    list->refresh();
    list->ensure_visible(1);
    list->move({0, 0, 100, 100});
    list->set_visible(true);
    list->set_hide_column_headers(true);
    list->set_header_width(1, 100);
    list->add_header(u"b");
    list->clear_headers();
    list->set_font(nullptr);
    list->set_back_color(0);
    EXPECT_EQ(5, rows().count());
    EXPECT_EQ(0, list->header_count());
    EXPECT_FALSE(list->visible());
}

TEST_F(ListViewPeerTest, AllListsHaveOneProcedure) {
    const auto procedure = GetWindowLongPtrW(window(), GWLP_WNDPROC);
    const auto first = std::move(list);
    renew_list();
    EXPECT_EQ(procedure, GetWindowLongPtrW(window(), GWLP_WNDPROC));
}

} // namespace
} // namespace vellora::test
