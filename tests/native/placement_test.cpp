// Where the floating window goes and how large it is.
#include "support/headless/drop_down_combo.h"
#include "support/headless/failure.h"

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

/// Gives the list other scroll bars in the floating window than it has in the control.
void change_scroll_bars(DropDownCombo& combo, std::uint32_t in_control, std::uint32_t in_popup) {
    combo.list_view.scroll_bars = [&combo, in_control, in_popup] {
        const WindowHandle parent = combo.desktop().at(combo.list_view.window()).parent;
        return combo.desktop().name(parent) == "popup" ? in_popup : in_control;
    };
}

constexpr std::uint32_t across = window_style::horizontal_scroll_bar;
constexpr std::uint32_t down = window_style::vertical_scroll_bar;

} // namespace

TEST(Placement, StartsAtTheLowerEdgeOneTwipPixelNarrowerThanTheControl) {
    DropDownCombo combo;
    // 3 rows of 17, borders 4, header 20 + 1
    EXPECT_EQ(combo.open(), (PixelRect{100, 221, 299, 297}));
    EXPECT_EQ(combo.list_in_popup(), (PixelRect{0, 0, 199, 76}));
}

TEST(Placement, IgnoresTheAlignmentWithoutAnOffset) {
    for (const std::int32_t alignment : {0, 1, 2}) {
        DropDownCombo combo;
        combo.placement().put_DropDownAlignment(alignment);
        const PixelRect rect = combo.open();
        EXPECT_EQ(rect.left, 100) << alignment;
        EXPECT_EQ(rect.right, 299) << alignment;
    }
}

TEST(Placement, KeepsTheAlignedEdgeWithAWiderDropDown) {
    const std::vector<std::pair<std::int32_t, std::int32_t>> left_edges{{0, 100}, {1, 60}, {2, 80}, {7, 100}};
    for (const auto& [alignment, left] : left_edges) {
        DropDownCombo combo;
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
        DropDownCombo combo;
        combo.placement().put_DropDownWidthOffset(-600);
        combo.placement().put_DropDownAlignment(alignment);
        const PixelRect rect = combo.open();
        EXPECT_EQ(rect.left, left) << alignment;
        EXPECT_EQ(rect.right - rect.left, 159) << alignment;
    }
}

TEST(Placement, GoesOffTheScreenWithTheControl) {
    DropDownCombo combo;
    combo.surface.place(-500, -300);
    EXPECT_EQ(combo.open(), (PixelRect{-500, -279, -301, -203}));
}

TEST(Placement, OpensAnEmptyListOneRowTallWithoutHeaders) {
    DropDownCombo combo(0);
    // a line of 195 twips and a pixel, borders 4 pixels
    EXPECT_EQ(combo.open_height(), 18);
    EXPECT_EQ(combo.surface.measured, u"Yy");
    EXPECT_TRUE(combo.list_view.hide_column_headers());
    EXPECT_FALSE(combo.columns().HideColumnHeaders());
}

TEST(Placement, ShowsHeadersAgainOnceThereAreRows) {
    DropDownCombo combo(0);
    combo.open();
    combo.drop_down().HideList();
    combo.add_rows(1);
    EXPECT_EQ(combo.open_height(), 17 + 4 + 21);
    EXPECT_FALSE(combo.list_view.hide_column_headers());
}

TEST(Placement, OpensAsTallAsItsRowsUpToDropDownHeight) {
    EXPECT_EQ(DropDownCombo(3).open_height(), 3 * 17 + 25);
    EXPECT_EQ(DropDownCombo(8).open_height(), 8 * 17 + 25);
    EXPECT_EQ(DropDownCombo(20).open_height(), 8 * 17 + 25);
}

TEST(Placement, RoundsPartsOfRowsHalfToEven) {
    const std::vector<std::pair<float, std::int32_t>> rows_shown{
        {1, 1}, {1.5F, 2}, {2.5F, 2}, {2.6F, 3}, {3.5F, 4}, {19.5F, 20}, {20.5F, 20}};
    for (const auto& [height, rows] : rows_shown) {
        DropDownCombo combo(20);
        combo.placement().put_DropDownHeight(height);
        EXPECT_EQ(combo.open_height(), rows * 17 + 25) << height;
    }
}

TEST(Placement, TakesTheListsRowHeight) {
    DropDownCombo combo(2);
    combo.list_view.set_row_height(300);
    EXPECT_EQ(combo.open_height(), 2 * 20 + 25);
}

TEST(Placement, CountsNoHeaderThatIsHidden) {
    DropDownCombo combo(3);
    combo.columns().put_HideColumnHeaders(true);
    EXPECT_EQ(combo.open_height(), 3 * 17 + 4);
    EXPECT_TRUE(combo.list_view.hide_column_headers());
}

TEST(Placement, CountsNoHeaderThatIsMissing) {
    DropDownCombo combo(3);
    combo.list_view.without_header = true;
    EXPECT_EQ(combo.open_height(), 3 * 17 + 4);
}

TEST(Placement, CountsNoHeaderWhoseRectangleCannotBeRead) {
    DropDownCombo combo(3);
    combo.user32.without_rect = combo.list_view.header_window();
    EXPECT_EQ(combo.open_height(), 3 * 17 + 4);
}

TEST(Placement, CountsOnePixelMoreThanTheHeaderHas) {
    DropDownCombo combo(1);
    combo.list_view.set_header_height(33);
    EXPECT_EQ(combo.open_height(), 17 + 4 + 34);
}

TEST(Placement, MakesRoomForAHorizontalScrollBar) {
    DropDownCombo combo(3);
    combo.columns().put_ColumnWidth(1, 6000);
    EXPECT_EQ(combo.open_height(), 76 + 17);
    EXPECT_EQ(combo.list_in_popup(), (PixelRect{0, 0, 199, 93}));
}

TEST(Placement, MakesNoRoomForAVerticalScrollBar) {
    DropDownCombo combo(20);
    combo.list_view.scroll_bars = [] { return down; };
    EXPECT_EQ(combo.open_height(), 8 * 17 + 25);
}

TEST(Placement, MakesRoomForAScrollBarThatComesInTheFloatingWindow) {
    DropDownCombo combo(3);
    change_scroll_bars(combo, 0, across);
    EXPECT_EQ(combo.open(), (PixelRect{100, 221, 299, 297 + 17}));
    EXPECT_EQ(combo.list_in_popup(), (PixelRect{0, 0, 199, 93}));
}

TEST(Placement, MakesRoomEvenForAScrollBarThatGoes) {
    DropDownCombo combo(3);
    change_scroll_bars(combo, across, 0);
    EXPECT_EQ(combo.open_height(), 76 + 17 + 17);
}

TEST(Placement, MakesRoomForAScrollBarThatReplacesTheOther) {
    DropDownCombo combo(3);
    change_scroll_bars(combo, down, across);
    EXPECT_EQ(combo.open_height(), 76 + 17);
}

TEST(Placement, GrowsTheWindowWithoutRepaintingIt) {
    DropDownCombo combo(3);
    change_scroll_bars(combo, 0, across);
    combo.open();
    const Lines calls = combo.journal().take_system();
    EXPECT_NE(std::find(calls.begin(), calls.end(), "move popup 100,221 199x93"), calls.end());
}

TEST(Placement, HasNoHighlightedRowWithoutASelection) {
    DropDownCombo combo(3);
    combo.selection().put_ListIndex(2);
    combo.selection().put_ListIndex(-1);
    combo.list_view.scrolled_to.clear();
    combo.open();
    EXPECT_EQ(combo.list_view.rows().selected(), -1);
    EXPECT_TRUE(combo.list_view.scrolled_to.empty());
}

TEST(Placement, ScrollsTheSelectedRowIntoView) {
    DropDownCombo combo(20);
    combo.selection().put_ListIndex(12);
    combo.list_view.scrolled_to.clear();
    combo.open();
    EXPECT_EQ(combo.list_view.scrolled_to, std::vector<std::int32_t>{12});
    EXPECT_EQ(combo.list_view.rows().selected(), 12);
}

TEST(Placement, EnablesTheListAsTheControlIs) {
    DropDownCombo combo;
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
    DropDownCombo combo;
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
    DropDownCombo combo;
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
    DropDownCombo combo;
    combo.state().mbAllowResize = true;
    combo.open();
    combo.drop_down().HideList();
    EXPECT_EQ(combo.frame.tag(), u"");
    EXPECT_FALSE(combo.frame.visible());
    EXPECT_EQ(combo.desktop().at(combo.frame.window()).parent, combo.surface.window());
    EXPECT_EQ(combo.desktop().at(combo.list_view.window()).parent, combo.surface.window());
}

TEST(ResizableDropDown, DoesNotGrowFromOpeningToOpening) {
    DropDownCombo combo;
    combo.state().mbAllowResize = true;
    const std::int32_t first = combo.open_height();
    combo.drop_down().HideList();
    EXPECT_EQ(combo.open_height(), first);
}

TEST(ResizableDropDown, LeavesAFrameThatWasNotMovedAlone) {
    DropDownCombo combo;
    combo.open();
    combo.frame.set_visible(true);
    combo.drop_down().HideList();
    EXPECT_TRUE(combo.frame.visible());
}

TEST(FormCaption, StaysActiveWhileTheListHasTheFocus) {
    DropDownCombo combo;
    combo.open();
    Lines calls = combo.journal().take_system();
    EXPECT_EQ(calls.back(), "send form 0x0086 1 1");
    combo.drop_down().HideList();
    calls = combo.journal().take_system();
    EXPECT_EQ(calls.back(), "send form 0x0086 1 1");
}

TEST(FormCaption, OfAnMdiChildIsItsClientsAndFrames) {
    DropDownCombo combo;
    combo.site.mdi_child = true;
    combo.open();
    const Lines calls = combo.journal().take_system();
    ASSERT_GE(calls.size(), 2U);
    EXPECT_EQ(calls[calls.size() - 2], "send mdi client 0x0086 1 1");
    EXPECT_EQ(calls[calls.size() - 1], "send mdi frame 0x0086 1 1");
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "send form 0x0086 1 1"), 0);
}

TEST(FormCaption, IsNobodysBusinessWithoutAForm) {
    DropDownCombo combo;
    combo.site.form = 0;
    combo.open();
    const Lines calls = combo.journal().take_system();
    EXPECT_EQ(calls.back(), "hook list");
}

TEST(PlacementArithmetic, OverflowsFarOffTheScreenAndRecovers) {
    DropDownCombo combo;
    combo.surface.place(200'000'000, 200);
    EXPECT_EQ(failure_of([&] { combo.drop_down().ShowList(); }), (Failure{6, u"", u""}));
    EXPECT_EQ(combo.journal().take_events(), Lines{});
    EXPECT_EQ(combo.state().mlStatic_hWnd, 0);
    combo.surface.place(100, 200);
    EXPECT_EQ(combo.open(), (PixelRect{100, 221, 299, 297}));
}

TEST(PlacementArithmetic, FailsWithoutPixels) {
    DropDownCombo combo;
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
    DropDownCombo combo(0);
    combo.placement().put_DropDownHeight(32768);
    combo.write(32767, -1, u"x");
    combo.add(u"one more");
    EXPECT_EQ(failure_of([&] { combo.drop_down().ShowList(); }).number, 6);
}

TEST(PlacementArithmetic, ThatFailsInTheMiddleOfAnOpeningLeavesAListThatOpensAgain) {
    DropDownCombo combo;
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

} // namespace vellora::test
