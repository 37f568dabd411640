// What the control learns from its open list: lost focus, dragged headers, and dividers it holds fast.
#include "com/support/open_list_test.h"

#include <commctrl.h>

namespace vellora::test {
namespace {

class ListHook : public OpenListTest {
protected:
    // The header tells the list what the mouse does; the cursor says over which column.
    LRESULT header_says(UINT code, int column) {
        HWND header = header_of(list());
        const RECT item = header_rect(list(), column);
        SetCursorPos((item.left + item.right) / 2, (item.top + item.bottom) / 2);
        wchar_t no_text[] = L"";
        HDITEMW changes{};
        changes.pszText = no_text;
        NMHEADERW notice{};
        notice.hdr = {header, static_cast<UINT_PTR>(GetDlgCtrlID(header)), code};
        notice.iItem = column;
        notice.pitem = &changes;
        return SendMessageW(list(), WM_NOTIFY, notice.hdr.idFrom, reinterpret_cast<LPARAM>(&notice));
    }
    void three_wide_columns() {
        fill(3, 3);
        for (short column = 1; column <= 3; ++column)
            c().put_ColumnWidth(column, static_cast<float>(60 * twips_per_pixel().cx));
    }
};

TEST_F(ListHook, TheWindowProcedureIsReplacedOnlyWhileTheListIsOpen) {
    fill(3);
    HWND window = list();
    const LONG_PTR before = GetWindowLongPtrW(window, GWLP_WNDPROC);
    open();
    EXPECT_NE(before, GetWindowLongPtrW(window, GWLP_WNDPROC));
    c().HideList();
    EXPECT_EQ(before, GetWindowLongPtrW(window, GWLP_WNDPROC));
    open();
    EXPECT_NE(before, GetWindowLongPtrW(window, GWLP_WNDPROC));
    c().HideList();
    EXPECT_EQ(before, GetWindowLongPtrW(window, GWLP_WNDPROC));
}

TEST_F(ListHook, LosingTheFocusClosesTheList) {
    fill(3);
    open();
    SendMessageW(list(), WM_KILLFOCUS, 0, 0);
    EXPECT_FALSE(is_open());
    EXPECT_TRUE(same_lines({"DropDown(I4 0)", "DropDown(I4 1)"}, events()));
}

TEST_F(ListHook, DividersOfLockedColumnsAreHeldFast) {
    three_wide_columns();
    c().put_ColumnLocked(2, VARIANT_TRUE);
    open();
    for (UINT code : {HDN_BEGINTRACKA, HDN_BEGINTRACKW}) {
        EXPECT_EQ(0, header_says(code, 0));
        EXPECT_EQ(1, header_says(code, 1));
        EXPECT_EQ(0, header_says(code, 2));
    }
}

TEST_F(ListHook, DividersOfHiddenColumnsAreHeldFastToo) {
    three_wide_columns();
    open();
    c().put_ColumnHidden(3, VARIANT_TRUE);
    for (UINT code : {HDN_BEGINTRACKA, HDN_BEGINTRACKW}) {
        EXPECT_EQ(0, header_says(code, 0));
        EXPECT_EQ(1, header_says(code, 2));
    }
}

TEST_F(ListHook, TheEndOfAHeaderDragIsReported) {
    three_wide_columns();
    c().put_AllowColumnReorder(VARIANT_TRUE);
    open();
    events();
    header_says(HDN_ENDDRAG, 0);
    EXPECT_TRUE(same_lines({"ColumnReorder()"}, events()));
    EXPECT_EQ(list(), GetFocus());
    EXPECT_TRUE(is_open());
}

// While the list is open its header's notices pass through it twice, and every second one is reported.
TEST_F(ListHook, EachClickOnAHeaderIsReportedOnce) {
    three_wide_columns();
    open();
    events();
    HWND header = header_of(list());
    click(header, header_rect(list(), 1));
    EXPECT_TRUE(same_lines({"ColumnClick(I2 2)"}, events()));
    click(header, header_rect(list(), 0));
    click(header, header_rect(list(), 2));
    EXPECT_TRUE(same_lines({"ColumnClick(I2 1)", "ColumnClick(I2 3)"}, events()));
    EXPECT_TRUE(is_open());
}

TEST_F(ListHook, ADestroyedListWindowClosesWithoutEvents) {
    fill(3);
    open();
    events();
    HWND window = list();
    DestroyWindow(window);
    container_.pump();
    EXPECT_EQ(0, site().events().count("ColumnReorder"));
    site().destroy();
    EXPECT_TRUE(floating_windows().empty());
}

} // namespace
} // namespace vellora::test
