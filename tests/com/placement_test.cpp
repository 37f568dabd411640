// Where the floating window goes and how large it is, in pixels.
#include "com/support/open_list_test.h"

#include <commctrl.h>

namespace vellora::test {
namespace {

int width_of(const RECT& rect) {
    return rect.right - rect.left;
}
int height_of(const RECT& rect) {
    return rect.bottom - rect.top;
}

class Placement : public OpenListTest {
protected:
    // Columns narrow enough to need no horizontal scroll bar.
    void fill_narrow(int rows) {
        c().put_Columns(1);
        c().put_ColumnWidth(1, twips(50));
        fill(rows);
    }
    RECT opened() {
        open();
        return screen_rect(floating_window());
    }
    int row_height() {
        const RECT row = row_rect(list(), 0);
        return height_of(row);
    }
    // The header's height counts one pixel more than its window has.
    int header_height() { return height_of(screen_rect(header_of(list()))) + 1; }
    float twips(int pixels) { return static_cast<float>(pixels * twips_per_pixel().cx); }
};

TEST_F(Placement, BelowTheControlAndOnePixelNarrower) {
    fill_narrow(3);
    const RECT own = screen_rect(control());
    const RECT window = opened();
    EXPECT_EQ(own.left, window.left);
    EXPECT_EQ(own.bottom, window.top);
    EXPECT_EQ(width_of(own) - 1, width_of(window));
}

TEST_F(Placement, AShortListIsAsTallAsItsRows) {
    fill_narrow(3);
    const RECT window = opened();
    EXPECT_EQ(3 * row_height() + 4 + header_height(), height_of(window));
}

TEST_F(Placement, ALongListShowsEightRows) {
    fill_narrow(20);
    const RECT window = opened();
    EXPECT_EQ(8 * row_height() + 4 + header_height(), height_of(window));
}

TEST_F(Placement, DropDownHeightRoundsHalvesToTheEvenNeighbour) {
    fill_narrow(20);
    for (auto [rows, shown] : {std::pair{2.5F, 2}, {3.5F, 4}, {1.0F, 1}, {7.4F, 7}}) {
        c().put_DropDownHeight(rows);
        const RECT window = opened();
        EXPECT_EQ(shown * row_height() + 4 + header_height(), height_of(window)) << rows;
        c().HideList();
    }
}

TEST_F(Placement, DropDownHeightBelowOneIsRefused) {
    c().put_DropDownHeight(5);
    EXPECT_EQ(static_cast<HRESULT>(0x800A017C), c().put_DropDownHeight(0.99F));
    EXPECT_EQ(static_cast<HRESULT>(0x800A017C), c().put_DropDownHeight(-3));
    float height = 0;
    c().get_DropDownHeight(&height);
    EXPECT_FLOAT_EQ(5, height);
}

TEST_F(Placement, AnEmptyListIsOneRowTallAndWithoutHeaders) {
    fill_narrow(0);
    const RECT window = opened();
    EXPECT_NE(0, GetWindowLongW(list(), GWL_STYLE) & LVS_NOCOLUMNHEADER);
    // A line of text, one pixel, and the border.
    const int line = height_of(screen_rect(control())) - 8;
    EXPECT_EQ(line + 1 + 4, height_of(window));
    c().HideList();
    fill(2);
    open();
    EXPECT_EQ(0, GetWindowLongW(list(), GWL_STYLE) & LVS_NOCOLUMNHEADER);
}

TEST_F(Placement, WithoutHeadersTheWindowIsLower) {
    fill_narrow(3);
    c().put_HideColumnHeaders(VARIANT_TRUE);
    const RECT window = opened();
    EXPECT_EQ(3 * row_height() + 4, height_of(window));
}

TEST_F(Placement, OffsetAndAlignment) {
    fill_narrow(3);
    const RECT own = screen_rect(control());
    struct Case {
        vlDropDownAlignmentConstants alignment;
        int offset;
        LONG left;
    };
    for (const Case& is : {Case{vlDDLeft, 60, 0},
                           {vlDDRight, 60, -60},
                           {vlDDCenter, 60, -30},
                           {vlDDLeft, -40, 0},
                           {vlDDRight, -40, 40},
                           {vlDDCenter, -40, 20},
                           {vlDDRight, 0, 0},
                           {vlDDCenter, 0, 0}}) {
        c().put_DropDownAlignment(is.alignment);
        c().put_DropDownWidthOffset(twips(is.offset));
        const RECT window = opened();
        EXPECT_EQ(own.left + is.left, window.left) << is.alignment << ' ' << is.offset;
        EXPECT_EQ(width_of(own) + is.offset - 1, width_of(window)) << is.alignment << ' ' << is.offset;
        EXPECT_EQ(own.bottom, window.top);
        c().HideList();
    }
}

TEST_F(Placement, AHorizontalScrollBarMakesItTaller) {
    fill(3, 2);
    c().put_ColumnWidth(1, twips(300));
    const RECT window = opened();
    EXPECT_NE(0, GetWindowLongW(list(), GWL_STYLE) & WS_HSCROLL);
    EXPECT_EQ(3 * row_height() + 4 + header_height() + GetSystemMetrics(SM_CYVTHUMB), height_of(window));
}

TEST_F(Placement, TheGripRowIsAddedOnceAtEveryOpening) {
    fill_narrow(3);
    const int plain = height_of(opened());
    c().HideList();
    c().put_AllowResize(VARIANT_TRUE);
    const int first = height_of(opened());
    c().HideList();
    EXPECT_GT(first, plain + 5);
    EXPECT_EQ(first, height_of(opened()));
}

TEST_F(Placement, ItFollowsTheControlToItsNewPlace) {
    fill_narrow(3);
    open();
    c().HideList();
    site().move({140, 200, 400, 224});
    const RECT window = opened();
    EXPECT_EQ(screen_rect(control()).left, window.left);
    EXPECT_EQ(screen_rect(control()).bottom, window.top);
    EXPECT_EQ(260 - 1, width_of(window));
}

TEST_F(Placement, ItIsNotKeptOnTheScreen) {
    Form::Look look = bare_form();
    look.place.top = GetSystemMetrics(SM_CYSCREEN) - 80;
    look.place.bottom = look.place.top + 400;
    Container low(look);
    Site& site = low.add(__uuidof(Vellora));
    const auto control = vellora(site);
    for (int row = 0; row < 20; ++row)
        control->AddItem(Variant(L"row").get(), -1);
    control->ShowList();
    low.pump();
    const RECT window = screen_rect(floating_window());
    EXPECT_EQ(screen_rect(window_of(site)).bottom, window.top);
    EXPECT_GT(window.bottom, GetSystemMetrics(SM_CYSCREEN));
    control->HideList();
}

} // namespace
} // namespace vellora::test
