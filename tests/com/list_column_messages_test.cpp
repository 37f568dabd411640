// Widths, headers and orders of columns, as other programs and the list's own header ask for them.
#include "com/support/list_window_test.h"

#include <array>

namespace vellora::test {
namespace {

constexpr int text_margins = 12;

class ListColumnMessagesTest : public ListWindowTest {
protected:
    void auto_size(int column, int mode) const {
        send(LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(column), MAKELPARAM(mode, 0));
    }
    int content_width(std::u16string_view text) const { return measured(text) + text_margins; }
};

TEST_F(ListColumnMessagesTest, SizesAColumnToItsWidestText) {
    add_columns({u"a", u"b"});
    add_row({u"short", u"x"});
    add_row({u"the longest text of all", u"yy"});
    auto_size(0, LVSCW_AUTOSIZE);
    auto_size(1, LVSCW_AUTOSIZE);
    EXPECT_EQ(content_width(u"the longest text of all"), width_by_message(0));
    EXPECT_EQ(content_width(u"yy"), width_by_message(1));
    rows().remove(1);
    send(LVM_SETCOLUMNWIDTH, 0, LPARAM{-1});
    EXPECT_EQ(content_width(u"short"), width_by_message(0));
}

TEST_F(ListColumnMessagesTest, MakesRoomForCheckBoxesInTheFirstColumn) {
    add_columns({u"a", u"b"});
    add_row({u"text", u"text"});
    list->set_check_boxes(true);
    auto_size(0, LVSCW_AUTOSIZE);
    auto_size(1, LVSCW_AUTOSIZE);
    EXPECT_EQ(content_width(u"text") + GetSystemMetrics(SM_CXSMICON), width_by_message(0));
    EXPECT_EQ(content_width(u"text"), width_by_message(1));
}

TEST_F(ListColumnMessagesTest, IncludesTheCaption) {
    add_columns({u"a rather long caption", u"b", u"c"});
    add_row({u"x", u"a rather long text", u"x"});
    auto_size(0, LVSCW_AUTOSIZE_USEHEADER);
    auto_size(1, LVSCW_AUTOSIZE_USEHEADER);
    EXPECT_GE(width_by_message(0), content_width(u"a rather long caption"));
    EXPECT_EQ(content_width(u"a rather long text"), width_by_message(1));
}

TEST_F(ListColumnMessagesTest, TheLastColumnTakesWhatIsLeftButNeverLessThanItNeeds) {
    add_columns({u"a", u"b"});
    add_row({u"x", u"a text"});
    show(300, 200);
    RECT client{};
    GetClientRect(window(), &client);
    send(LVM_SETCOLUMNWIDTH, 0, MAKELPARAM(100, 0));
    auto_size(1, LVSCW_AUTOSIZE_USEHEADER);
    EXPECT_EQ(client.right - 100, width_by_message(1));
    send(LVM_SETCOLUMNWIDTH, 0, MAKELPARAM(290, 0));
    auto_size(1, LVSCW_AUTOSIZE_USEHEADER);
    EXPECT_EQ(content_width(u"a text"), width_by_message(1));
}

TEST_F(ListColumnMessagesTest, MeasuresAgainWithAnotherFont) {
    add_columns({u"a"});
    add_row({u"the text"});
    auto_size(0, LVSCW_AUTOSIZE);
    const int small = width_by_message(0);
    list->set_font(win32::OleFont::create(u"Tahoma", 24));
    auto_size(0, LVSCW_AUTOSIZE);
    EXPECT_EQ(content_width(u"the text"), width_by_message(0));
    EXPECT_GT(width_by_message(0), small);
}

TEST_F(ListColumnMessagesTest, ADoubleClickOnADividerSizesTheColumn) {
    add_columns({u"a"});
    add_row({u"the text"});
    NMHEADERW notification{};
    notification.hdr.hwndFrom = header();
    notification.hdr.code = static_cast<UINT>(HDN_DIVIDERDBLCLICKW);
    EXPECT_EQ(0, send(WM_NOTIFY, 0, &notification));
    EXPECT_EQ(content_width(u"the text"), width_by_message(0));
    notification.iItem = 5;
    EXPECT_EQ(0, send(WM_NOTIFY, 0, &notification));
}

TEST_F(ListColumnMessagesTest, RefusesWidthsThatAreNone) {
    add_columns({u"a"});
    send(LVM_SETCOLUMNWIDTH, 0, MAKELPARAM(70, 0));
    EXPECT_FALSE(send(LVM_SETCOLUMNWIDTH, 0, MAKELPARAM(-3, 0)));
    EXPECT_FALSE(send(LVM_SETCOLUMNWIDTH, 1, MAKELPARAM(50, 0)));
    EXPECT_FALSE(send(LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(-1), MAKELPARAM(-1, 0)));
    EXPECT_EQ(70, width_by_message(0));
}

TEST_F(ListColumnMessagesTest, KeepsTheHeadersInStepWithForeignColumns) {
    add_columns({u"a", u"b"});
    list->set_header_tag(2, u"tag of b");
    wchar_t caption[] = L"new";
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.pszText = caption;
    column.cx = 40;
    EXPECT_EQ(1, send(LVM_INSERTCOLUMNW, 1, &column));
    EXPECT_EQ(3, list->header_count());
    EXPECT_EQ(u"new", list->header_text(2));
    EXPECT_EQ(u"tag of b", list->header_tag(3));
    char narrow[] = "narrow";
    LVCOLUMNA renamed{};
    renamed.mask = LVCF_TEXT;
    renamed.pszText = narrow;
    EXPECT_TRUE(send(LVM_SETCOLUMNA, 1, &renamed));
    EXPECT_EQ(u"narrow", list->header_text(2));
    EXPECT_TRUE(send(LVM_DELETECOLUMN, 1));
    EXPECT_FALSE(send(LVM_DELETECOLUMN, 2));
    EXPECT_EQ(u"tag of b", list->header_tag(2));
}

TEST_F(ListColumnMessagesTest, TakesOnlyOrdersThatNameEachColumnOnce) {
    add_columns({u"a", u"b", u"c"});
    const auto set_order = [&](std::vector<int> order) {
        return send(LVM_SETCOLUMNORDERARRAY, order.size(), order.data());
    };
    EXPECT_TRUE(set_order({2, 0, 1}));
    EXPECT_FALSE(set_order({0, 0, 1}));
    EXPECT_FALSE(set_order({0, 1, 3}));
    EXPECT_FALSE(set_order({0, 1, -1}));
    EXPECT_FALSE(set_order({0, 1}));
    std::array<int, 3> order{};
    send(LVM_GETCOLUMNORDERARRAY, order.size(), order.data());
    EXPECT_EQ((std::array<int, 3>{2, 0, 1}), order);
}

TEST_F(ListColumnMessagesTest, ANewOrderShowsInTheRowsToo) {
    add_columns({u"a", u"b"});
    add_rows(3);
    show(300, 200);
    UpdateWindow(window());
    ASSERT_FALSE(GetUpdateRect(window(), nullptr, FALSE));
    const std::array<int, 2> order{1, 0};
    send(LVM_SETCOLUMNORDERARRAY, order.size(), order.data());
    RECT stale{};
    GetUpdateRect(window(), &stale, FALSE);
    const POINT cell = point_in(1, LVIR_LABEL);
    EXPECT_TRUE(PtInRect(&stale, cell));
}

} // namespace
} // namespace vellora::test
