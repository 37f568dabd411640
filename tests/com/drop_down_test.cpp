// Opening and closing the list: what a program, a click and a change of focus do, and what the host is told.
#include "com/support/open_list_test.h"

#include <algorithm>
#include <commctrl.h>

namespace vellora::test {
namespace {

class DropDown : public OpenListTest {};

TEST_F(DropDown, ShowListOpensOneFloatingWindowWithTheListInIt) {
    fill(3);
    open();
    ASSERT_EQ(1U, floating_windows().size());
    HWND window = floating_window();
    EXPECT_EQ(L"Static", class_of(window));
    EXPECT_TRUE(IsWindowVisible(window));
    EXPECT_EQ(0, GetWindowLongW(window, GWL_STYLE) & WS_CAPTION);
    ASSERT_NE(nullptr, list_of(window));
    EXPECT_TRUE(IsWindowVisible(list_of(window)));
    EXPECT_EQ(list_of(window), GetFocus());
    EXPECT_TRUE(same_lines({"DropDown(I4 0)"}, events()));
}

TEST_F(DropDown, HideListPutsEverythingBack) {
    fill(3);
    open();
    HWND window = floating_window();
    events();
    ASSERT_EQ(S_OK, c().HideList());
    EXPECT_FALSE(IsWindow(window));
    EXPECT_TRUE(floating_windows().empty());
    ASSERT_NE(nullptr, list_of(control()));
    EXPECT_FALSE(IsWindowVisible(list_of(control())));
    EXPECT_TRUE(same_lines({"DropDown(I4 1)"}, events()));
}

TEST_F(DropDown, HideListOnAClosedListSaysNothing) {
    ASSERT_EQ(S_OK, c().HideList());
    EXPECT_TRUE(same_lines({}, events()));
}

TEST_F(DropDown, ShowListOnAnOpenListOpensNoSecond) {
    fill(3);
    open();
    open();
    EXPECT_EQ(1U, floating_windows().size());
    EXPECT_TRUE(same_lines({"DropDown(I4 0)"}, events()));
}

TEST_F(DropDown, EveryOpeningHasOneClosing) {
    fill(3);
    for (int i = 0; i < 5; ++i) {
        open();
        ASSERT_TRUE(is_open());
        c().HideList();
        container_.pump();
        ASSERT_FALSE(is_open());
        EXPECT_TRUE(same_lines({"DropDown(I4 0)", "DropDown(I4 1)"}, events())) << i;
    }
}

TEST_F(DropDown, TheHostCannotVeto) {
    fill(3);
    site().events().on("DropDown", [](EventArguments& arguments) {
        EXPECT_TRUE(arguments.set(0, arguments.get(0).number() == 0 ? 1 : 0));
    });
    open();
    EXPECT_TRUE(is_open());
    c().HideList();
    EXPECT_FALSE(is_open());
    EXPECT_TRUE(same_lines({"DropDown(I4 0)", "DropDown(I4 1)"}, events()));
}

TEST_F(DropDown, AClickOnTheButtonOpensAndTheNextOneCloses) {
    fill(3);
    for (int round = 0; round < 3; ++round) {
        click_button();
        EXPECT_TRUE(is_open()) << round;
        click_button();
        EXPECT_FALSE(is_open()) << round;
    }
    EXPECT_EQ(6U, events().size());
}

TEST_F(DropDown, TheToggleButtonToo) {
    ComPtr<PropertyBag> bag(new PropertyBag);
    bag->put(L"ButtonStyle", 1);
    Site& toggle = container_.load(__uuidof(Vellora), *bag.Get(), L"Toggle", {20, 80, 220, 104});
    HWND button = drop_button(window_of(toggle));
    click(button, screen_rect(button));
    EXPECT_TRUE(is_open());
    click(button, screen_rect(button));
    EXPECT_FALSE(is_open());
    EXPECT_TRUE(same_lines({"DropDown(I4 0)", "DropDown(I4 1)"}, toggle.events().take()));
}

// A program that is busy finds both clicks waiting.
TEST_F(DropDown, AQuickDoubleClickOpensAndCloses) {
    ComPtr<PropertyBag> bag(new PropertyBag);
    bag->put(L"ButtonStyle", 1);
    Site& toggle = container_.load(__uuidof(Vellora), *bag.Get(), L"Toggle", {20, 80, 220, 104});
    HWND button = drop_button(window_of(toggle));
    POINT point{3, 3};
    const LPARAM where = MAKELPARAM(point.x, point.y);
    ClientToScreen(button, &point);
    SetCursorPos(point.x, point.y);
    for (int click = 0; click < 2; ++click) {
        PostMessageW(button, WM_LBUTTONDOWN, MK_LBUTTON, where);
        PostMessageW(button, WM_LBUTTONUP, 0, where);
    }
    container_.pump();
    EXPECT_FALSE(is_open());
    EXPECT_TRUE(same_lines({"DropDown(I4 0)", "DropDown(I4 1)"}, toggle.events().take()));
}

TEST_F(DropDown, OpeningSelectsTheWholeText) {
    fill(3);
    c().put_ListIndex(1);
    c().put_SelLength(0);
    open();
    LONG start = -1;
    LONG length = -1;
    c().get_SelStart(&start);
    c().get_SelLength(&length);
    EXPECT_EQ(0, start);
    EXPECT_EQ(static_cast<LONG>(text().size()), length);
}

TEST_F(DropDown, AClickOnARowSelectsItThenCloses) {
    fill(5);
    open();
    events();
    click(list(), row_rect(list(), 3));
    EXPECT_FALSE(is_open());
    EXPECT_EQ(3, list_index());
    EXPECT_EQ(L"row 3.1", text());
    EXPECT_TRUE(same_lines({"Click()", "DropDown(I4 1)"}, events()));
    EXPECT_EQ(text_field(control()), GetFocus());
}

TEST_F(DropDown, EnterSelectsLikeAClick) {
    fill(5);
    open();
    key(list(), VK_DOWN);
    key(list(), VK_DOWN);
    events();
    key(list(), VK_RETURN);
    EXPECT_FALSE(is_open());
    EXPECT_TRUE(same_lines({"Click()", "DropDown(I4 1)"}, events()));
    EXPECT_EQ(1, list_index());
}

TEST_F(DropDown, F4ClosesWithoutSelecting) {
    fill(5);
    open();
    events();
    key(list(), VK_F4);
    EXPECT_FALSE(is_open());
    EXPECT_TRUE(same_lines({"DropDown(I4 1)"}, events()));
}

TEST_F(DropDown, ShiftF4DoesNot) {
    fill(5);
    open();
    BYTE keys[256];
    GetKeyboardState(keys);
    keys[VK_SHIFT] = 0x80;
    SetKeyboardState(keys);
    SendMessageW(list(), WM_KEYDOWN, VK_F4, 1);
    EXPECT_TRUE(is_open());
    keys[VK_SHIFT] = 0;
    SetKeyboardState(keys);
    c().HideList();
}

TEST_F(DropDown, LosingTheFocusCloses) {
    fill(3);
    HWND edit = make_edit();
    open();
    events();
    SetFocus(edit);
    container_.pump();
    EXPECT_FALSE(is_open());
    EXPECT_EQ(edit, GetFocus());
    EXPECT_TRUE(same_lines({"DropDown(I4 1)"}, events()));
}

TEST_F(DropDown, TheCaptionStaysActive) {
    fill(3);
    c().AddItem(Variant(L"x").get(), -1);
    SetFocus(text_field(control()));
    container_.form().forget_caption_messages();
    open();
    EXPECT_TRUE(container_.form().caption_active());
    ASSERT_FALSE(container_.form().caption_messages().empty());
    EXPECT_EQ("form 1 1", container_.form().caption_messages().back());
    container_.form().forget_caption_messages();
    c().HideList();
    container_.pump();
    EXPECT_TRUE(container_.form().caption_active());
    const Lines& messages = container_.form().caption_messages();
    EXPECT_NE(messages.end(), std::find(messages.begin(), messages.end(), "form 1 1"));
}

TEST_F(DropDown, OnAnMdiChildTheFrameStaysActive) {
    Container mdi(bare_form(Form::Kind::mdi_child));
    Site& child = mdi.add(__uuidof(Vellora));
    SetFocus(text_field(window_of(child)));
    mdi.form().forget_caption_messages();
    vellora(child)->ShowList();
    mdi.pump();
    EXPECT_TRUE(mdi.form().caption_active());
    const Lines& messages = mdi.form().caption_messages();
    EXPECT_NE(messages.end(), std::find(messages.begin(), messages.end(), "frame 1 1"));
    vellora(child)->HideList();
}

TEST_F(DropDown, HiddenColumnsOpenWithNoWidth) {
    fill(3, 3);
    c().put_ColumnHidden(2, VARIANT_TRUE);
    open();
    EXPECT_EQ(0, SendMessageW(list(), LVM_GETCOLUMNWIDTH, 1, 0));
    EXPECT_NE(0, SendMessageW(list(), LVM_GETCOLUMNWIDTH, 0, 0));
}

TEST_F(DropDown, TheSelectedRowIsInView) {
    fill(100);
    c().put_ListIndex(77);
    open();
    const int top = static_cast<int>(SendMessageW(list(), LVM_GETTOPINDEX, 0, 0));
    const int page = static_cast<int>(SendMessageW(list(), LVM_GETCOUNTPERPAGE, 0, 0));
    EXPECT_LE(top, 77);
    EXPECT_GT(top + page, 77);
    EXPECT_EQ(77, SendMessageW(list(), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

TEST_F(DropDown, WithoutASelectionNoRowIsMarked) {
    fill(10);
    open();
    EXPECT_EQ(-1, SendMessageW(list(), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

TEST_F(DropDown, ASortedListIsInOrderWhenItOpens) {
    c().put_Sorted(VARIANT_TRUE);
    for (const wchar_t* row : {L"c", L"a", L"b"})
        c().AddItem(Variant(row).get(), -1);
    open();
    Variant first;
    c().get_List(0, -1, first.out());
    EXPECT_EQ("\"a\"", first.describe());
}

TEST_F(DropDown, HandlersMayCloseTheListAsItOpens) {
    fill(3);
    site().events().on("DropDown", [&](EventArguments& arguments) {
        if (arguments.get(0).number() == 0)
            c().HideList();
    });
    open();
    EXPECT_FALSE(is_open());
    EXPECT_TRUE(same_lines({"DropDown(I4 0)", "DropDown(I4 1)"}, events()));
    site().events().on("DropDown", {});
    open();
    EXPECT_TRUE(is_open());
}

TEST_F(DropDown, HandlersMayOpenTheListAsItCloses) {
    fill(3);
    open();
    bool once = true;
    site().events().on("DropDown", [&](EventArguments& arguments) {
        if (arguments.get(0).number() == 1 && std::exchange(once, false))
            c().ShowList();
    });
    c().HideList();
    container_.pump();
    c().HideList();
    container_.pump();
    site().events().on("DropDown", {});
    events();
    open();
    EXPECT_TRUE(is_open());
    EXPECT_TRUE(same_lines({"DropDown(I4 0)"}, events()));
}

TEST_F(DropDown, ADisabledControlStillOpensForItsProgram) {
    fill(3);
    c().put_Enabled(VARIANT_FALSE);
    open();
    ASSERT_TRUE(is_open());
    EXPECT_FALSE(IsWindowEnabled(list()));
    c().HideList();
    EXPECT_FALSE(is_open());
}

} // namespace
} // namespace vellora::test
