// Where the floating window goes and how large it is. The control stands at 100,200 on the screen and is 200
// pixels wide and 21 high; a pixel is 15 twips, a row 17 pixels, a header 20, a scroll bar 17.
#include "support/headless/failure.h"
#include "support/headless/headless_control.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace vellora {

bool operator==(const PixelRect& a, const PixelRect& b) {
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

std::ostream& operator<<(std::ostream& out, const PixelRect& rect) {
    return out << rect.left << "," << rect.top << " to " << rect.right << "," << rect.bottom;
}

} // namespace vellora

namespace vellora::test {

namespace {

const Failure invalid_value{380, u"", u""};

/// A control whose only column is narrow enough for no scroll bar.
struct Narrow : HeadlessControl {
    explicit Narrow(int rows = 3) {
        columns().put_ColumnWidth(1, 1500);
        add_rows(rows);
        journal().take_all();
    }

    PixelRect popup() { return desktop().screen_rect(state().mlStatic_hWnd); }
    PixelRect open() {
        drop_down().ShowList();
        return popup();
    }
    std::int32_t open_height() {
        const PixelRect rect = open();
        return rect.bottom - rect.top;
    }
    PixelRect list_in_popup() { return desktop().at(list_view.window()).rect; }
};

/// Gives the list other scroll bars in the floating window than it has in the control.
void change_scroll_bars(Narrow& combo, std::uint32_t in_control, std::uint32_t in_popup) {
    combo.list_view.scroll_bars = [&combo, in_control, in_popup] {
        const WindowHandle parent = combo.desktop().at(combo.list_view.window()).parent;
        return combo.desktop().name(parent) == "popup" ? in_popup : in_control;
    };
}

constexpr std::uint32_t across = window_style::horizontal_scroll_bar;
constexpr std::uint32_t down = window_style::vertical_scroll_bar;

} // namespace

TEST(Placement, StartsAtTheLowerEdgeOneTwipPixelNarrowerThanTheControl) {
    Narrow combo;
    // 3 rows of 17, borders 4, header 20 + 1
    EXPECT_EQ(combo.open(), (PixelRect{100, 221, 299, 297}));
    EXPECT_EQ(combo.list_in_popup(), (PixelRect{0, 0, 199, 76}));
}

TEST(Placement, IgnoresTheAlignmentWithoutAnOffset) {
    for (const std::int32_t alignment : {0, 1, 2}) {
        Narrow combo;
        combo.placement().put_DropDownAlignment(alignment);
        const PixelRect rect = combo.open();
        EXPECT_EQ(rect.left, 100) << alignment;
        EXPECT_EQ(rect.right, 299) << alignment;
    }
}

TEST(Placement, KeepsTheAlignedEdgeWithAWiderDropDown) {
    const std::vector<std::pair<std::int32_t, std::int32_t>> left_edges{{0, 100}, {1, 60}, {2, 80}, {7, 100}};
    for (const auto& [alignment, left] : left_edges) {
        Narrow combo;
        combo.placement().put_DropDownWidthOffset(600); // 40 pixels
        combo.placement().put_DropDownAlignment(alignment);
        const PixelRect rect = combo.open();
        EXPECT_EQ(rect.left, left) << alignment;
        EXPECT_EQ(rect.right - rect.left, 239) << alignment;
    }
}

TEST(Placement, KeepsTheAlignedEdgeWithANarrowerDropDown) {
    const std::vector<std::pair<std::int32_t, std::int32_t>> left_edges{{0, 100}, {1, 140}, {2, 120}};
    for (const auto& [alignment, left] : left_edges) {
        Narrow combo;
        combo.placement().put_DropDownWidthOffset(-600);
        combo.placement().put_DropDownAlignment(alignment);
        const PixelRect rect = combo.open();
        EXPECT_EQ(rect.left, left) << alignment;
        EXPECT_EQ(rect.right - rect.left, 159) << alignment;
    }
}

TEST(Placement, GoesOffTheScreenWithTheControl) {
    Narrow combo;
    combo.surface.place(-500, -300);
    EXPECT_EQ(combo.open(), (PixelRect{-500, -279, -301, -203}));
}

TEST(Placement, OpensAnEmptyListOneRowTallWithoutHeaders) {
    Narrow combo(0);
    // a line of 195 twips and a pixel, borders 4 pixels
    EXPECT_EQ(combo.open_height(), 18);
    EXPECT_EQ(combo.surface.measured, u"Yy");
    EXPECT_TRUE(combo.list_view.hide_column_headers());
    EXPECT_FALSE(combo.columns().HideColumnHeaders());
}

TEST(Placement, ShowsHeadersAgainOnceThereAreRows) {
    Narrow combo(0);
    combo.open();
    combo.drop_down().HideList();
    combo.add_rows(1);
    EXPECT_EQ(combo.open_height(), 17 + 4 + 21);
    EXPECT_FALSE(combo.list_view.hide_column_headers());
}

TEST(Placement, OpensAsTallAsItsRowsUpToDropDownHeight) {
    EXPECT_EQ(Narrow(3).open_height(), 3 * 17 + 25);
    EXPECT_EQ(Narrow(8).open_height(), 8 * 17 + 25);
    EXPECT_EQ(Narrow(20).open_height(), 8 * 17 + 25);
}

TEST(Placement, RoundsPartsOfRowsHalfToEven) {
    const std::vector<std::pair<float, std::int32_t>> rows_shown{
        {1, 1}, {1.5F, 2}, {2.5F, 2}, {2.6F, 3}, {3.5F, 4}, {19.5F, 20}, {20.5F, 20}};
    for (const auto& [height, rows] : rows_shown) {
        Narrow combo(20);
        combo.placement().put_DropDownHeight(height);
        EXPECT_EQ(combo.open_height(), rows * 17 + 25) << height;
    }
}

TEST(Placement, TakesTheListsRowHeight) {
    Narrow combo(2);
    combo.list_view.set_row_height(300);
    EXPECT_EQ(combo.open_height(), 2 * 20 + 25);
}

TEST(Placement, CountsNoHeaderThatIsHidden) {
    Narrow combo(3);
    combo.columns().put_HideColumnHeaders(true);
    EXPECT_EQ(combo.open_height(), 3 * 17 + 4);
    EXPECT_TRUE(combo.list_view.hide_column_headers());
}

TEST(Placement, CountsNoHeaderThatIsMissing) {
    Narrow combo(3);
    combo.list_view.without_header = true;
    EXPECT_EQ(combo.open_height(), 3 * 17 + 4);
}

TEST(Placement, CountsNoHeaderWhoseRectangleCannotBeRead) {
    Narrow combo(3);
    combo.user32.without_rect = combo.list_view.header_window();
    EXPECT_EQ(combo.open_height(), 3 * 17 + 4);
}

TEST(Placement, CountsOnePixelMoreThanTheHeaderHas) {
    Narrow combo(1);
    combo.list_view.set_header_height(33);
    EXPECT_EQ(combo.open_height(), 17 + 4 + 34);
}

TEST(Placement, MakesRoomForAHorizontalScrollBar) {
    Narrow combo(3);
    combo.columns().put_ColumnWidth(1, 6000);
    EXPECT_EQ(combo.open_height(), 76 + 17);
    EXPECT_EQ(combo.list_in_popup(), (PixelRect{0, 0, 199, 93}));
}

TEST(Placement, MakesNoRoomForAVerticalScrollBar) {
    Narrow combo(20);
    combo.list_view.scroll_bars = [] { return down; };
    EXPECT_EQ(combo.open_height(), 8 * 17 + 25);
}

TEST(Placement, MakesRoomForAScrollBarThatComesInTheFloatingWindow) {
    Narrow combo(3);
    change_scroll_bars(combo, 0, across);
    EXPECT_EQ(combo.open(), (PixelRect{100, 221, 299, 297 + 17}));
    EXPECT_EQ(combo.list_in_popup(), (PixelRect{0, 0, 199, 93}));
}

TEST(Placement, MakesRoomEvenForAScrollBarThatGoes) {
    Narrow combo(3);
    change_scroll_bars(combo, across, 0);
    EXPECT_EQ(combo.open_height(), 76 + 17 + 17);
}

TEST(Placement, MakesRoomForAScrollBarThatReplacesTheOther) {
    Narrow combo(3);
    change_scroll_bars(combo, down, across);
    EXPECT_EQ(combo.open_height(), 76 + 17);
}

TEST(Placement, GrowsTheWindowWithoutRepaintingIt) {
    Narrow combo(3);
    change_scroll_bars(combo, 0, across);
    combo.open();
    const Lines calls = combo.journal().take_system();
    EXPECT_NE(std::find(calls.begin(), calls.end(), "move popup 100,221 199x93"), calls.end());
}

TEST(Placement, HasNoHighlightedRowWithoutASelection) {
    Narrow combo(3);
    combo.selection().put_ListIndex(2);
    combo.selection().put_ListIndex(-1);
    combo.list_view.scrolled_to.clear();
    combo.open();
    EXPECT_EQ(combo.list_view.rows().selected(), -1);
    EXPECT_TRUE(combo.list_view.scrolled_to.empty());
}

TEST(Placement, ScrollsTheSelectedRowIntoView) {
    Narrow combo(20);
    combo.selection().put_ListIndex(12);
    combo.list_view.scrolled_to.clear();
    combo.open();
    EXPECT_EQ(combo.list_view.scrolled_to, std::vector<std::int32_t>{12});
    EXPECT_EQ(combo.list_view.rows().selected(), 12);
}

TEST(Placement, EnablesTheListAsTheControlIs) {
    Narrow combo;
    combo.state().mbEnabled = false;
    combo.list_view.set_enabled(true);
    combo.open();
    EXPECT_FALSE(combo.list_view.enabled());
    combo.drop_down().HideList();
    combo.state().mbEnabled = true;
    combo.open();
    EXPECT_TRUE(combo.list_view.enabled());
}

TEST(Placement, BringsTheListBackHiddenOnClosing) {
    Narrow combo;
    combo.open();
    EXPECT_TRUE(combo.list_view.visible());
    EXPECT_EQ(combo.desktop().name(combo.desktop().at(combo.list_view.window()).parent), "popup");
    combo.drop_down().HideList();
    EXPECT_FALSE(combo.list_view.visible());
    EXPECT_EQ(combo.desktop().at(combo.list_view.window()).parent, combo.surface.window());
    EXPECT_EQ(combo.desktop().count("popup"), 0U);
    EXPECT_EQ(combo.state().mlStatic_hWnd, 0);
}

TEST(ResizableDropDown, AddsAGripRowBelowTheList) {
    Narrow combo;
    combo.state().mbAllowResize = true;
    EXPECT_EQ(combo.open(), (PixelRect{100, 221, 299, 297 + 16})); // a grip of 240 twips
    EXPECT_EQ(combo.desktop().at(combo.frame.window()).parent, combo.state().mlStatic_hWnd);
    EXPECT_TRUE(combo.frame.visible());
    const std::string handle = std::to_string(combo.state().mlStatic_hWnd);
    EXPECT_EQ(combo.frame.tag(), std::u16string(handle.begin(), handle.end()));
    EXPECT_EQ(combo.desktop().at(combo.frame.window()).rect, (PixelRect{0, 0, 199, 92}));
    EXPECT_EQ(combo.list_in_popup(), (PixelRect{0, 0, 199, 76}));
}

TEST(ResizableDropDown, GivesFrameAndListBackOnClosing) {
    Narrow combo;
    combo.state().mbAllowResize = true;
    combo.open();
    combo.drop_down().HideList();
    EXPECT_EQ(combo.frame.tag(), u"");
    EXPECT_FALSE(combo.frame.visible());
    EXPECT_EQ(combo.desktop().at(combo.frame.window()).parent, combo.surface.window());
    EXPECT_EQ(combo.desktop().at(combo.list_view.window()).parent, combo.surface.window());
}

TEST(ResizableDropDown, DoesNotGrowFromOpeningToOpening) {
    Narrow combo;
    combo.state().mbAllowResize = true;
    const std::int32_t first = combo.open_height();
    combo.drop_down().HideList();
    EXPECT_EQ(combo.open_height(), first);
}

TEST(ResizableDropDown, LeavesAFrameThatWasNotMovedAlone) {
    Narrow combo;
    combo.open();
    combo.frame.set_visible(true);
    combo.drop_down().HideList();
    EXPECT_TRUE(combo.frame.visible());
}

TEST(FormCaption, StaysActiveWhileTheListHasTheFocus) {
    Narrow combo;
    combo.open();
    Lines calls = combo.journal().take_system();
    EXPECT_EQ(calls.back(), "send form 0x0086 1 1");
    combo.drop_down().HideList();
    calls = combo.journal().take_system();
    EXPECT_EQ(calls.back(), "send form 0x0086 1 1");
}

TEST(FormCaption, OfAnMdiChildIsItsClientsAndFrames) {
    Narrow combo;
    combo.site.mdi_child = true;
    combo.open();
    const Lines calls = combo.journal().take_system();
    ASSERT_GE(calls.size(), 2U);
    EXPECT_EQ(calls[calls.size() - 2], "send mdi client 0x0086 1 1");
    EXPECT_EQ(calls[calls.size() - 1], "send mdi frame 0x0086 1 1");
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "send form 0x0086 1 1"), 0);
}

TEST(FormCaption, IsNobodysBusinessWithoutAForm) {
    Narrow combo;
    combo.site.form = 0;
    combo.open();
    const Lines calls = combo.journal().take_system();
    EXPECT_EQ(calls.back(), "hook list");
}

TEST(PlacementArithmetic, OverflowsFarOffTheScreenAndRecovers) {
    Narrow combo;
    combo.surface.place(200'000'000, 200);
    EXPECT_EQ(failure_of([&] { combo.drop_down().ShowList(); }), (Failure{6, u"", u""}));
    EXPECT_EQ(combo.journal().take_events(), Lines{});
    EXPECT_EQ(combo.state().mlStatic_hWnd, 0);
    combo.surface.place(100, 200);
    EXPECT_EQ(combo.open(), (PixelRect{100, 221, 299, 297}));
}

TEST(PlacementArithmetic, FailsWithoutPixels) {
    Narrow combo;
    combo.state().miTwipsPerPixelX = 0;
    EXPECT_EQ(failure_of([&] { combo.drop_down().ShowList(); }), (Failure{11, u"", u""}));
    combo.state().miTwipsPerPixelX = 15;
    combo.state().miTwipsPerPixelY = 0;
    EXPECT_EQ(failure_of([&] { combo.drop_down().ShowList(); }), (Failure{11, u"", u""}));
    combo.state().miTwipsPerPixelY = 15;
    EXPECT_EQ(combo.open_height(), 76);
    EXPECT_EQ(combo.journal().take_events(), Lines{"DropDown(open)"});
}

TEST(PlacementArithmetic, OverflowsWithMoreRowsToShowThanAnIntegerHolds) {
    Narrow combo(0);
    combo.placement().put_DropDownHeight(32768);
    combo.write(32767, -1, u"x");
    combo.add(u"one more");
    EXPECT_EQ(failure_of([&] { combo.drop_down().ShowList(); }).number, 6);
}

TEST(PlacementArithmetic, ThatFailsInTheMiddleOfAnOpeningLeavesAListThatOpensAgain) {
    Narrow combo;
    change_scroll_bars(combo, 0, across);
    combo.user32.metrics[system_metric::scroll_bar_height] = std::numeric_limits<int>::max();
    EXPECT_EQ(failure_of([&] { combo.drop_down().ShowList(); }).number, 6);
    combo.list_view.scroll_bars = nullptr;
    combo.drop_down().HideList();
    EXPECT_EQ(combo.desktop().count("popup"), 0U);
    combo.journal().take_all();
    EXPECT_EQ(combo.open_height(), 76);
    EXPECT_EQ(combo.journal().take_events(), Lines{"DropDown(open)"});
}

TEST(DropDownHeight, BelowOneRowIsRefusedAndKept) {
    HeadlessControl combo;
    for (const float rows : {0.99F, 0.0F, -3.0F, std::numeric_limits<float>::quiet_NaN()}) {
        EXPECT_EQ(failure_of([&] { combo.placement().put_DropDownHeight(rows); }), invalid_value) << rows;
    }
    EXPECT_EQ(combo.placement().DropDownHeight(), 8.0F);
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(DropDownHeight, FromOneRowOnIsStoredAndReported) {
    HeadlessControl combo;
    combo.placement().put_DropDownHeight(1);
    combo.placement().put_DropDownHeight(2.5F);
    EXPECT_EQ(combo.placement().DropDownHeight(), 2.5F);
    EXPECT_EQ(combo.journal().take_all(), (Lines{"Changed(DropDownHeight)", "Changed(DropDownHeight)"}));
}

TEST(DropDownSettings, AreReportedByTheirOwnNames) {
    HeadlessControl combo;
    combo.placement().put_DropDownWidthOffset(-15);
    combo.placement().put_DropDownAlignment(9);
    combo.placement().put_DropDownBackColor(0x00FF00);
    combo.placement().put_DropDownForeColor(0x80000008);
    EXPECT_EQ(combo.placement().DropDownWidthOffset(), -15.0F);
    EXPECT_EQ(combo.placement().DropDownAlignment(), 9);
    EXPECT_EQ(combo.placement().DropDownBackColor(), 0x00FF00U);
    EXPECT_EQ(combo.list_view.back_color(), 0x00FF00U);
    EXPECT_EQ(combo.placement().DropDownForeColor(), 0x80000008U);
    EXPECT_EQ(combo.list_view.fore_color(), 0x80000008U);
    EXPECT_EQ(combo.journal().take_all(),
              (Lines{"Changed(DropDownWidthOffset)", "Changed(DropDownAlignment)",
                     "Changed(DropDownBackColor)", "Changed(DropDownForeColor)"}));
}

TEST(DropDownSettings, AreNotReportedWhileLoading) {
    HeadlessControl combo;
    combo.state().mbLoadingProperties = true;
    combo.placement().put_DropDownHeight(3);
    combo.placement().put_DropDownWidthOffset(15);
    combo.placement().put_DropDownAlignment(1);
    combo.placement().put_DropDownBackColor(0);
    combo.placement().put_DropDownForeColor(0);
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

} // namespace vellora::test
