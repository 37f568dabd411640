// What other programs ask of the list's window, and what it answers from its rows.
#include "com/support/list_window_test.h"

#include "widgets/win32/notification_router.h"
#include "widgets/win32/wide_text.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace vellora::test {
namespace {

class ListMessagesTest : public ListWindowTest {
protected:
    LRESULT set_text(int row, int column, const wchar_t* text) const {
        LVITEMW item{};
        item.iSubItem = column;
        item.pszText = const_cast<wchar_t*>(text);
        return send(LVM_SETITEMTEXTW, static_cast<WPARAM>(row), &item);
    }
    LRESULT insert(int row, const wchar_t* text) const {
        LVITEMW item{};
        item.mask = LVIF_TEXT;
        item.iItem = row;
        item.pszText = const_cast<wchar_t*>(text);
        return send(LVM_INSERTITEMW, 0, &item);
    }
    LRESULT set_state(int row, UINT state, UINT mask) const {
        LVITEMW item{};
        item.state = state;
        item.stateMask = mask;
        return send(LVM_SETITEMSTATE, static_cast<WPARAM>(row), &item);
    }
    LRESULT find(const wchar_t* text, UINT flags, int behind) const {
        LVFINDINFOW search{};
        search.flags = flags;
        search.psz = text;
        return send(LVM_FINDITEMW, static_cast<WPARAM>(behind), &search);
    }
    std::u16string text(int row, int column = 0) { return std::u16string(rows().text(row, column)); }
};

TEST_F(ListMessagesTest, CountsAndReadsTheRows) {
    add_row({u"one", u"first"});
    add_row({u"two", u"second"});
    EXPECT_EQ(2, send(LVM_GETITEMCOUNT));
    EXPECT_EQ(u"two", text_by_message(1, 0));
    EXPECT_EQ(u"second", text_by_message(1, 1));
    EXPECT_EQ(u"", text_by_message(1, 2));
    EXPECT_EQ(u"", text_by_message(2, 0));
    EXPECT_EQ(u"", text_by_message(-1, 0));
    EXPECT_EQ(u"", text_by_message(0, -1));
}

TEST_F(ListMessagesTest, CutsATextToTheBuffer) {
    add_row({u"abcdef"});
    std::array<wchar_t, 4> buffer{L'#', L'#', L'#', L'#'};
    LVITEMW item{};
    item.pszText = buffer.data();
    item.cchTextMax = 3;
    EXPECT_EQ(2, send(LVM_GETITEMTEXTW, 0, &item));
    EXPECT_STREQ(L"ab", buffer.data());
    EXPECT_EQ(L'#', buffer[3]);
}

TEST_F(ListMessagesTest, ReadsNarrowText) {
    add_row({u"abcdef"});
    std::array<char, 4> buffer{'#', '#', '#', '#'};
    LVITEMA item{};
    item.pszText = buffer.data();
    item.cchTextMax = 4;
    EXPECT_EQ(3, send(LVM_GETITEMTEXTA, 0, &item));
    EXPECT_STREQ("abc", buffer.data());
}

TEST_F(ListMessagesTest, ReadsAWholeItem) {
    add_row({u"one", u"first"});
    list->set_check_boxes(true);
    rows().set_checked(0, true);
    rows().select(0);
    std::array<wchar_t, 20> buffer{};
    LVITEMW item{};
    item.mask = LVIF_TEXT | LVIF_STATE | LVIF_PARAM;
    item.stateMask = LVIS_SELECTED | LVIS_STATEIMAGEMASK;
    item.pszText = buffer.data();
    item.cchTextMax = static_cast<int>(buffer.size());
    ASSERT_TRUE(send(LVM_GETITEMW, 0, &item));
    EXPECT_STREQ(L"one", buffer.data());
    EXPECT_EQ(LVIS_SELECTED | INDEXTOSTATEIMAGEMASK(2), item.state);
    item.iItem = 1;
    EXPECT_FALSE(send(LVM_GETITEMW, 0, &item));
}

TEST_F(ListMessagesTest, WritesTextIntoTheRows) {
    add_columns({u"a", u"b", u"c"});
    add_row({u"one"});
    EXPECT_TRUE(set_text(0, 0, L"uno"));
    EXPECT_TRUE(set_text(0, 2, L"due"));
    EXPECT_EQ(u"uno", text(0));
    EXPECT_EQ(u"", text(0, 1));
    EXPECT_EQ(u"due", text(0, 2));
    EXPECT_FALSE(set_text(0, 3, L"x"));
    EXPECT_FALSE(set_text(1, 0, L"x"));
    EXPECT_FALSE(set_text(-1, 0, L"x"));
    EXPECT_FALSE(set_text(0, -1, L"x"));
    EXPECT_TRUE(set_text(0, 0, nullptr));
    EXPECT_EQ(u"", text(0));
}

TEST_F(ListMessagesTest, WritesNarrowText) {
    add_row({u"one"});
    char narrow[] = "uno";
    LVITEMA item{};
    item.mask = LVIF_TEXT;
    item.pszText = narrow;
    EXPECT_TRUE(send(LVM_SETITEMA, 0, &item));
    EXPECT_EQ(u"uno", text(0));
}

TEST_F(ListMessagesTest, InsertsAndDeletesRows) {
    EXPECT_EQ(0, insert(0, L"b"));
    EXPECT_EQ(0, insert(0, L"a"));
    EXPECT_EQ(2, insert(1000, L"c"));
    EXPECT_EQ(-1, insert(-1, L"x"));
    EXPECT_EQ(u"a", text(0));
    EXPECT_EQ(u"b", text(1));
    EXPECT_EQ(u"c", text(2));
    EXPECT_TRUE(send(LVM_DELETEITEM, 1));
    EXPECT_FALSE(send(LVM_DELETEITEM, 2));
    EXPECT_FALSE(send(LVM_DELETEITEM, static_cast<WPARAM>(-1)));
    EXPECT_EQ(2, rows().count());
    EXPECT_EQ(2, send(LVM_GETITEMCOUNT));
    EXPECT_TRUE(send(LVM_DELETEALLITEMS));
    EXPECT_EQ(0, rows().count());
    EXPECT_EQ(0, send(LVM_GETITEMCOUNT));
}

TEST_F(ListMessagesTest, RefusesARowCountAndAnOrderOfItsOwn) {
    add_rows(2);
    EXPECT_FALSE(send(LVM_SETITEMCOUNT, 1000));
    EXPECT_FALSE(send(LVM_SORTITEMS, 0, LPARAM{1}));
    EXPECT_FALSE(send(LVM_SORTITEMSEX, 0, LPARAM{1}));
    EXPECT_EQ(2, send(LVM_GETITEMCOUNT));
}

TEST_F(ListMessagesTest, SelectsAndDeselectsRows) {
    add_rows(3);
    EXPECT_TRUE(set_state(1, LVIS_SELECTED, LVIS_SELECTED));
    EXPECT_EQ(1, rows().selected());
    EXPECT_EQ(1, selected_by_message());
    EXPECT_TRUE(set_state(0, 0, LVIS_SELECTED));
    EXPECT_EQ(1, rows().selected());
    EXPECT_TRUE(set_state(-1, 0, LVIS_SELECTED));
    EXPECT_EQ(-1, rows().selected());
    EXPECT_FALSE(set_state(-1, LVIS_SELECTED, LVIS_SELECTED));
    EXPECT_FALSE(set_state(3, LVIS_SELECTED, LVIS_SELECTED));
    EXPECT_EQ(-1, rows().selected());
}

TEST_F(ListMessagesTest, ChecksRowsByTheirStateImage) {
    add_rows(3);
    list->set_check_boxes(true);
    set_state(1, INDEXTOSTATEIMAGEMASK(2), LVIS_STATEIMAGEMASK);
    EXPECT_TRUE(rows().checked(1));
    EXPECT_EQ(INDEXTOSTATEIMAGEMASK(2), send(LVM_GETITEMSTATE, 1, LPARAM{LVIS_STATEIMAGEMASK}));
    EXPECT_EQ(INDEXTOSTATEIMAGEMASK(1), send(LVM_GETITEMSTATE, 0, LPARAM{LVIS_STATEIMAGEMASK}));
    set_state(-1, INDEXTOSTATEIMAGEMASK(2), LVIS_STATEIMAGEMASK);
    EXPECT_TRUE(rows().checked(0));
    EXPECT_TRUE(rows().checked(2));
    set_state(0, INDEXTOSTATEIMAGEMASK(7), LVIS_STATEIMAGEMASK);
    EXPECT_TRUE(rows().checked(0));
}

TEST_F(ListMessagesTest, FindsRowsByText) {
    add_row({u"Alpha"});
    add_row({u"alphabet"});
    add_row({u"beta"});
    EXPECT_EQ(0, find(L"ALPHA", LVFI_STRING, -1));
    EXPECT_EQ(-1, find(L"alph", LVFI_STRING, -1));
    EXPECT_EQ(1, find(L"alph", LVFI_STRING | LVFI_PARTIAL, 0));
    EXPECT_EQ(-1, find(L"alph", LVFI_PARTIAL, 1));
    EXPECT_EQ(0, find(L"alph", LVFI_PARTIAL | LVFI_WRAP, 1));
    EXPECT_EQ(0, find(L"alph", LVFI_PARTIAL | LVFI_WRAP, 2));
    EXPECT_EQ(-1, find(L"alph", LVFI_PARAM, -1));
    EXPECT_EQ(-1, find(L"x", LVFI_PARTIAL | LVFI_WRAP, 100));
}

TEST_F(ListMessagesTest, AnswersTheWindowOnlyForRowsThereAre) {
    add_row({u"one"});
    NMLVDISPINFOW wanted{};
    wanted.hdr.hwndFrom = window();
    wanted.hdr.code = static_cast<UINT>(LVN_GETDISPINFOW);
    wanted.item.mask = LVIF_TEXT | LVIF_STATE | LVIF_IMAGE;
    for (const int row : {-1, 1, 1000000}) {
        wanted.item.iItem = row;
        wanted.item.pszText = nullptr;
        ASSERT_TRUE(win32::route_notification(reinterpret_cast<LPARAM>(&wanted)).has_value());
        ASSERT_NE(nullptr, wanted.item.pszText);
        EXPECT_STREQ(L"", wanted.item.pszText);
    }
    wanted.item.iItem = 0;
    win32::route_notification(reinterpret_cast<LPARAM>(&wanted));
    EXPECT_STREQ(L"one", wanted.item.pszText);
}

TEST_F(ListMessagesTest, AnswersANarrowWindow) {
    add_row({u"one"});
    std::array<char, 260> buffer{};
    NMLVDISPINFOA wanted{};
    wanted.hdr.hwndFrom = window();
    wanted.hdr.code = static_cast<UINT>(LVN_GETDISPINFOA);
    wanted.item.mask = LVIF_TEXT;
    wanted.item.pszText = buffer.data();
    wanted.item.cchTextMax = static_cast<int>(buffer.size());
    win32::route_notification(reinterpret_cast<LPARAM>(&wanted));
    EXPECT_STREQ("one", buffer.data());
}

TEST_F(ListMessagesTest, TellsTheTipOfTheCellUnderTheMouse) {
    add_columns({u"a", u"b"});
    add_row({u"one", u"first"});
    add_row({u"two", u"second"});
    rows().set_tool_tip(1, 0, u"tip of two");
    show(300, 200);
    send(WM_MOUSEMOVE, 0, MAKELPARAM(20, point_in(0, LVIR_BOUNDS).y));
    EXPECT_EQ(nullptr, FindWindowExW(nullptr, nullptr, TOOLTIPS_CLASSW, nullptr));
    send(WM_MOUSEMOVE, 0, MAKELPARAM(20, point_in(1, LVIR_BOUNDS).y));
    const HWND tip = FindWindowExW(nullptr, nullptr, TOOLTIPS_CLASSW, nullptr);
    ASSERT_NE(nullptr, tip);
    NMTTDISPINFOW wanted{};
    wanted.hdr.hwndFrom = tip;
    wanted.hdr.code = static_cast<UINT>(TTN_GETDISPINFOW);
    send(WM_NOTIFY, 0, &wanted);
    EXPECT_STREQ(L"tip of two", wanted.lpszText);
    send(WM_MOUSEMOVE, 0, MAKELPARAM(120, point_in(1, LVIR_BOUNDS).y));
    send(WM_NOTIFY, 0, &wanted);
    EXPECT_STREQ(L"", wanted.lpszText);
    send(WM_MOUSEMOVE, 0, MAKELPARAM(20, point_in(1, LVIR_BOUNDS).y));
    list->set_visible(false);
    send(WM_NOTIFY, 0, &wanted);
    EXPECT_STREQ(L"", wanted.lpszText);
}

} // namespace
} // namespace vellora::test
