// Headers and grip of the open list under the keyboard.
#include "com/support/open_list_test.h"
#include "support/container/text.h"

#include <algorithm>
#include <commctrl.h>

namespace vellora::test {
namespace {

using Numbers = std::vector<long>;

/// What assistive software is told to look at, as "header 2" or "rows 0".
class FocusEvents {
public:
    FocusEvents(HWND header, HWND rows)
        : hook_(SetWinEventHook(EVENT_OBJECT_FOCUS, EVENT_OBJECT_FOCUS, GetModuleHandleW(nullptr), note,
                                GetCurrentProcessId(), GetCurrentThreadId(), WINEVENT_INCONTEXT)) {
        heard_.clear();
        header_ = header;
        rows_ = rows;
    }
    ~FocusEvents() { UnhookWinEvent(hook_); }
    Lines take() { return std::exchange(heard_, {}); }

private:
    static void CALLBACK note(HWINEVENTHOOK, DWORD, HWND window, LONG object, LONG child, DWORD, DWORD) noexcept {
        if (object == OBJID_CLIENT && (window == header_ || window == rows_))
            heard_.push_back((window == header_ ? "header " : "rows ") + std::to_string(child));
    }
    static inline Lines heard_;
    static inline HWND header_ = nullptr;
    static inline HWND rows_ = nullptr;
    HWINEVENTHOOK hook_;
};

class ListKeysTest : public OpenListTest {
protected:
    void SetUp() override {
        OpenListTest::SetUp();
        fill(5, 3);
        widths(60);
        c().put_AllowColumnReorder(VARIANT_TRUE);
    }
    void widths(int pixels) {
        for (short column = 1; column <= 3; ++column)
            c().put_ColumnWidth(column, static_cast<float>(pixels * twips_per_pixel().cx));
    }
    void in_headers() {
        open();
        events();
        press(VK_F6);
    }
    void press(WORD code) { key(list(), code); }
    void press_in_field(WORD code) { key(text_field(control()), code); }
    void press_with(int modifier, WORD code) {
        const Held held(modifier);
        press(code);
    }
    Numbers shown_widths() {
        Numbers numbers;
        for (WPARAM column = 0; column < 3; ++column)
            numbers.push_back(static_cast<long>(SendMessageW(list(), LVM_GETCOLUMNWIDTH, column, 0)));
        return numbers;
    }
    std::string order() {
        Variant value;
        EXPECT_EQ(S_OK, c().get_ColumnOrder(value.out()));
        return value.describe();
    }
};

TEST_F(ListKeysTest, AHeaderIsClicked) {
    in_headers();
    press(VK_RIGHT);
    press(VK_SPACE);
    press(VK_RETURN);
    EXPECT_TRUE(same_lines({"ColumnClick(I2 2)", "ColumnClick(I2 2)"}, events()));
    EXPECT_TRUE(is_open());
    EXPECT_EQ(list(), GetFocus());
    EXPECT_EQ(-1, list_index());
}

TEST_F(ListKeysTest, TheFormIsNotAskedForThem) {
    SetFocus(text_field(control()));
    container_.pump();
    const auto asked = [this] {
        return std::ranges::count(site().log().take(), "IOleControlSite::TranslateAccelerator") != 0;
    };
    press_in_field(VK_F6);
    ASSERT_TRUE(asked());
    in_headers();
    asked();
    for (const WORD code : std::initializer_list<WORD>{VK_LEFT, VK_RIGHT, VK_UP, VK_ADD})
        press_with(VK_CONTROL, code);
    press(VK_F6);
    press(VK_ESCAPE);
    EXPECT_FALSE(asked());
}

TEST_F(ListKeysTest, AClickByTheMouseIsStillToldOnce) {
    in_headers();
    press(VK_SPACE);
    events();
    click(header_of(list()), header_rect(list(), 2));
    EXPECT_TRUE(same_lines({"ColumnClick(I2 3)"}, events()));
}

TEST_F(ListKeysTest, TheSpaceBarChecksNothingThere) {
    use(place_with_check_boxes());
    fill(1);
    c().put_ListIndex(0);
    in_headers();
    press(VK_SPACE);
    short count = -1;
    c().get_CheckedCount(&count);
    EXPECT_EQ(0, count);
    press(VK_F6);
    press(VK_SPACE);
    c().get_CheckedCount(&count);
    EXPECT_EQ(1, count);
}

TEST_F(ListKeysTest, EscGoesBackToTheRowsAndThenCloses) {
    in_headers();
    press(VK_ESCAPE);
    EXPECT_TRUE(is_open());
    press(VK_DOWN);
    press(VK_RETURN);
    EXPECT_EQ(0, list_index());
    open();
    press(VK_F6);
    press(VK_ESCAPE);
    press(VK_ESCAPE);
    EXPECT_FALSE(is_open());
}

TEST_F(ListKeysTest, AColumnIsSized) {
    in_headers();
    press_with(VK_SHIFT, VK_RIGHT);
    EXPECT_EQ((Numbers{68, 60, 60}), shown_widths());
    press_with(VK_SHIFT, VK_LEFT);
    press_with(VK_SHIFT, VK_LEFT);
    EXPECT_EQ((Numbers{52, 60, 60}), shown_widths());
    float width = 0;
    c().get_ColumnWidth(1, &width);
    EXPECT_EQ(static_cast<float>(52 * twips_per_pixel().cx), width);
}

TEST_F(ListKeysTest, ALockedColumnIsNot) {
    c().put_ColumnLocked(1, VARIANT_TRUE);
    in_headers();
    press_with(VK_SHIFT, VK_RIGHT);
    EXPECT_EQ((Numbers{60, 60, 60}), shown_widths());
}

// The platform's own list answers this key too, and knows nothing of hidden and locked columns.
TEST_F(ListKeysTest, CtrlPlusLeavesHiddenAndLockedColumns) {
    c().put_ColumnLocked(1, VARIANT_TRUE);
    c().put_ColumnHidden(2, VARIANT_TRUE);
    open();
    press_with(VK_CONTROL, VK_ADD);
    const Numbers fitted = shown_widths();
    EXPECT_EQ(60, fitted[0]);
    EXPECT_EQ(0, fitted[1]);
    EXPECT_NE(60, fitted[2]);
}

TEST_F(ListKeysTest, AColumnIsMoved) {
    in_headers();
    press_with(VK_CONTROL, VK_RIGHT);
    EXPECT_EQ("Integer(0 To 2) {I2 2, I2 1, I2 3}", order());
    press_with(VK_CONTROL, VK_RIGHT);
    EXPECT_EQ("Integer(0 To 2) {I2 2, I2 3, I2 1}", order());
    EXPECT_TRUE(same_lines({"ColumnReorder()", "ColumnReorder()"}, events()));
    EXPECT_EQ(list(), GetFocus());
}

TEST_F(ListKeysTest, AHeaderOutOfSightIsScrolledIntoView) {
    widths(150);
    in_headers();
    for (int column : {1, 2}) {
        press(VK_RIGHT);
        RECT view = screen_rect(list());
        const RECT header = header_rect(list(), column);
        EXPECT_GE(header.left, view.left);
        EXPECT_LE(header.right, view.right);
    }
    press(VK_LEFT);
    press(VK_LEFT);
    EXPECT_GE(header_rect(list(), 0).left, screen_rect(list()).left);
}

TEST_F(ListKeysTest, AssistiveSoftwareIsToldOfTheHeader) {
    open();
    press(VK_DOWN);
    press(VK_DOWN);
    FocusEvents told(header_of(list()), list());
    press(VK_F6);
    press(VK_RIGHT);
    press_with(VK_SHIFT, VK_RIGHT);
    EXPECT_TRUE(same_lines({"header 1", "header 2"}, told.take()));
    press(VK_F6);
    EXPECT_TRUE(same_lines({"rows 2"}, told.take()));
}

TEST_F(ListKeysTest, AHandlerMayEndTheControl) {
    const auto end_in = [this](const char* event, int modifier, WORD code) {
        Site& other = place(L"Vellora2", {20, 60, 220, 84});
        const auto combo = vellora(other);
        combo->put_Columns(2);
        combo->put_AllowColumnReorder(VARIANT_TRUE);
        combo->AddItem(Variant(L"row").get(), -1);
        other.events().on(event, [&](EventArguments&) { other.destroy(); });
        combo->ShowList();
        container_.pump();
        press(VK_F6);
        const Held held(modifier);
        press(code);
        EXPECT_EQ(nullptr, other.control()) << event;
        EXPECT_FALSE(is_open()) << event;
    };
    end_in("ColumnClick", 0, VK_SPACE);
    end_in("ColumnReorder", VK_CONTROL, VK_RIGHT);
}

TEST_F(ListKeysTest, AHandlerMayMakeOtherColumns) {
    site().events().on("ColumnReorder", [&](EventArguments&) { c().put_Columns(2); });
    site().events().on("ColumnClick", [&](EventArguments&) { c().put_Columns(4); });
    in_headers();
    press_with(VK_CONTROL, VK_RIGHT);
    press(VK_SPACE);
    press_with(VK_SHIFT, VK_RIGHT);
    press(VK_RIGHT);
    EXPECT_EQ("Integer(0 To 3) {I2 1, I2 2, I2 3, I2 4}", order());
    c().HideList();
}

TEST_F(ListKeysTest, TheListIsSizedByItsGrip) {
    ASSERT_EQ(S_OK, c().put_AllowResize(VARIANT_TRUE));
    open();
    const RECT before = screen_rect(floating_window());
    const RECT row = row_rect(list(), 0);
    {
        const Held ctrl(VK_CONTROL);
        press_with(VK_SHIFT, VK_DOWN);
        press_with(VK_SHIFT, VK_RIGHT);
    }
    const RECT after = screen_rect(floating_window());
    EXPECT_EQ(before.bottom + row.bottom - row.top, after.bottom);
    EXPECT_EQ(before.right + 8, after.right);
    EXPECT_EQ(before.left, after.left);
    EXPECT_EQ(list(), GetFocus());
}

// The rows take the keyboard back by any key that goes to one.
TEST_F(ListKeysTest, AnyKeyOfTheRowsLeavesTheHeaders) {
    for (const WORD code : std::initializer_list<WORD>{VK_UP, VK_DOWN, VK_HOME, VK_END, VK_PRIOR, VK_NEXT, 'R'}) {
        in_headers();
        press(code);
        press(VK_RETURN);
        EXPECT_FALSE(is_open()) << code;
        const Lines told = events();
        EXPECT_EQ(0, std::ranges::count(told, "ColumnClick(I2 1)")) << code;
        c().HideList();
    }
}

// The character that Enter leaves behind then comes before the handler has returned.
TEST_F(ListKeysTest, AHandlerMayRunTheMessagesThatWait) {
    in_headers();
    press(VK_SPACE);
    site().events().on("ColumnClick", [this](EventArguments&) { container_.pump(); });
    press(VK_RETURN);
    EXPECT_TRUE(is_open());
    EXPECT_TRUE(same_lines({"ColumnClick(I2 1)", "ColumnClick(I2 1)"}, events()));
}

TEST_F(ListKeysTest, TheGripStaysOnTheScreen) {
    ASSERT_EQ(S_OK, c().put_AllowResize(VARIANT_TRUE));
    open();
    const RECT whole = screen_rect(floating_window());
    const RECT large = {whole.left, whole.top, GetSystemMetrics(SM_CXSCREEN) - 9, GetSystemMetrics(SM_CYSCREEN) - 9};
    MoveWindow(floating_window(), large.left, large.top, large.right - large.left, large.bottom - large.top, TRUE);
    {
        const Held ctrl(VK_CONTROL);
        for (const WORD code : std::initializer_list<WORD>{VK_RIGHT, VK_RIGHT, VK_DOWN, VK_DOWN})
            press_with(VK_SHIFT, code);
    }
    RECT pulled = screen_rect(floating_window());
    EXPECT_EQ(GetSystemMetrics(SM_CXSCREEN), pulled.right);
    EXPECT_EQ(GetSystemMetrics(SM_CYSCREEN), pulled.bottom);
    const Held ctrl(VK_CONTROL);
    press_with(VK_SHIFT, VK_LEFT);
    EXPECT_EQ(pulled.right - 8, screen_rect(floating_window()).right);
}

} // namespace
} // namespace vellora::test
