// Rows: adding and removing them, and the numbers kept with them.
#include "support/headless/failure.h"
#include "support/headless/headless_control.h"

#include <gtest/gtest.h>

#include <vector>

namespace vellora::test {

namespace {

using Row = std::vector<std::u16string>;

const Failure invalid_row{381, u"", u""};

TestVariant texts(std::vector<Element> elements) {
    return TestVariant::array(std::move(elements));
}

} // namespace

TEST(AddItem, OnAnEmptyListGivesRowZero) {
    HeadlessControl combo;
    combo.add(u"a");
    EXPECT_EQ(combo.items().ListCount(), 1);
    EXPECT_EQ(combo.items().NewIndex(), 0);
    EXPECT_EQ(combo.list(0), u"a");
}

TEST(AddItem, AtZeroMovesTheOthersDown) {
    HeadlessControl combo;
    combo.add(u"a");
    combo.add(u"b", 0);
    EXPECT_EQ(combo.items().NewIndex(), 0);
    EXPECT_EQ(combo.list(0), u"b");
    EXPECT_EQ(combo.list(1), u"a");
}

TEST(AddItem, BehindTheLastRowIsTheSameAsAppending) {
    HeadlessControl combo;
    combo.add_rows(2);
    combo.add(u"last", 2);
    EXPECT_EQ(combo.list(2), u"last");
    EXPECT_EQ(combo.items().NewIndex(), 2);
}

TEST(AddItem, BeyondTheEndOrBeforeTheStartFailsAsTheListViewFails) {
    HeadlessControl combo;
    combo.add_rows(2);
    EXPECT_EQ(failure_of([&] { combo.add(u"x", 3); }).number, 35600);
    EXPECT_EQ(failure_of([&] { combo.add(u"x", -2); }).number, 35600);
    EXPECT_EQ(failure_of([&] { combo.add(u"x", -32768); }).number, 35600);
    EXPECT_EQ(combo.items().ListCount(), 2);
}

TEST(AddItem, AtTheLargestIndexOverflows) {
    HeadlessControl combo;
    EXPECT_EQ(failure_of([&] { combo.add(u"x", 32767); }), (Failure{6, u"", u""}));
    EXPECT_EQ(combo.items().ListCount(), 0);
    EXPECT_EQ(combo.items().NewIndex(), -1);
}

TEST(AddItem, LeavesOutWhatGoesBeyondTheColumns) {
    HeadlessControl combo;
    combo.columns().put_Columns(2);
    combo.add(texts({u"a", u"b", u"c", u"d"}));
    EXPECT_EQ(combo.row(0), (Row{u"a", u"b"}));
    EXPECT_EQ(combo.list_view.rows().sub_item_count(0), 1);
}

TEST(AddItem, OfAShortArrayLeavesTheLastColumnsWithoutCells) {
    HeadlessControl combo;
    combo.columns().put_Columns(5);
    combo.add(texts({u"a", u"b", u"c", u"d"}));
    EXPECT_EQ(combo.list_view.rows().sub_item_count(0), 3);
    EXPECT_EQ(combo.list(0, 4), u"d");
    EXPECT_EQ(failure_of([&] { combo.list(0, 5); }).number, 35600);
    EXPECT_EQ(failure_of([&] { combo.row(0); }).number, 35600);
}

TEST(AddItem, OfAScalarFillsOnlyTheFirstColumn) {
    HeadlessControl combo;
    combo.columns().put_Columns(3);
    combo.add(u"a");
    EXPECT_EQ(combo.list_view.rows().sub_item_count(0), 0);
}

TEST(AddItem, TurnsNumbersAndEmptyIntoText) {
    HeadlessControl combo;
    combo.columns().put_Columns(2);
    combo.add(2.5);
    combo.add(Empty{});
    combo.add(texts({7.0, Empty{}}));
    EXPECT_EQ(combo.list(0), u"2.5");
    EXPECT_EQ(combo.list(1), u"");
    EXPECT_EQ(combo.row(2), (Row{u"7", u""}));
}

TEST(AddItem, ReadsElementZeroWhateverTheLowerBound) {
    HeadlessControl combo;
    combo.columns().put_Columns(3);
    combo.add(TestVariant::array({{-1, 1}}, {u"before", u"zero", u"one"}));
    EXPECT_EQ(combo.list(0, 1), u"zero");
    EXPECT_EQ(combo.list(0, 2), u"one");
}

TEST(AddItem, OfAnArrayWithoutElementZeroIsASubscriptOutOfRange) {
    HeadlessControl combo;
    EXPECT_EQ(failure_of([&] {
                  combo.add(TestVariant::array({{1, 2}}, {u"a", u"b"}));
              }),
              (Failure{9, u"", u""}));
    EXPECT_EQ(failure_of([&] { combo.add(TestVariant::array({}, {})); }).number, 9);
}

TEST(AddItem, ThatFailsOnItsTextsKeepsTheNewRowButNotAsNewIndex) {
    HeadlessControl combo;
    combo.add(u"a");
    EXPECT_EQ(failure_of([&] { combo.add(Null{}, 0); }).number, 94);
    EXPECT_EQ(combo.items().ListCount(), 2);
    EXPECT_EQ(combo.list(0), u"");
    EXPECT_EQ(combo.items().NewIndex(), 1);
}

TEST(AddItem, SetsToolTipsOnlyWhileTheyAreWanted) {
    HeadlessControl combo;
    combo.columns().put_Columns(2);
    combo.add(texts({u"a", u"b"}));
    combo.items().put_ShowItemToolTips(true);
    combo.add(texts({u"c", u"d"}));
    combo.add(u"e");
    const ListRows& rows = combo.list_view.rows();
    EXPECT_EQ(rows.tool_tip(0, 0), u"");
    EXPECT_EQ(rows.tool_tip(0, 1), u"");
    EXPECT_EQ(rows.tool_tip(1, 0), u"c");
    EXPECT_EQ(rows.tool_tip(1, 1), u"d");
    EXPECT_EQ(rows.tool_tip(2, 0), u"e");
}

TEST(AddItem, MarksTheListForSortingOnlyWhenItIsSorted) {
    HeadlessControl combo;
    combo.state().mbListDirty = true;
    combo.add(u"a");
    EXPECT_FALSE(combo.state().mbListDirty);
    combo.state().mbSorted = true;
    combo.add(u"b");
    EXPECT_TRUE(combo.state().mbListDirty);
}

TEST(AddItem, ReportsNothing) {
    HeadlessControl combo;
    combo.add(u"a");
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(NewIndex, IsMinusOneBeforeAnyRowAndAfterAnyRemoval) {
    HeadlessControl combo;
    EXPECT_EQ(combo.items().NewIndex(), -1);
    combo.add_rows(3);
    EXPECT_EQ(combo.items().NewIndex(), 2);
    combo.items().RemoveItem(0);
    EXPECT_EQ(combo.items().NewIndex(), -1);
}

TEST(NewIndex, FollowsItsRow) {
    HeadlessControl combo;
    combo.add(u"m");
    combo.add(u"b");
    combo.list_view.rows().set_sorted(true);
    EXPECT_EQ(combo.items().NewIndex(), 0);
    combo.add(u"a");
    combo.list_view.refresh();
    EXPECT_EQ(combo.items().NewIndex(), 0);
    EXPECT_EQ(combo.list(0), u"a");
}

TEST(RemoveItem, MovesTheRowsBelowUp) {
    HeadlessControl combo;
    combo.add_rows(3);
    combo.items().RemoveItem(1);
    EXPECT_EQ(combo.items().ListCount(), 2);
    EXPECT_EQ(combo.list(0), u"row 0");
    EXPECT_EQ(combo.list(1), u"row 2");
    EXPECT_TRUE(combo.state().mbListDirty);
}

TEST(RemoveItem, OfARowThatIsNotThereIsAnInvalidIndex) {
    HeadlessControl combo;
    combo.add_rows(1);
    EXPECT_EQ(failure_of([&] { combo.items().RemoveItem(1); }), invalid_row);
    EXPECT_EQ(failure_of([&] { combo.items().RemoveItem(-1); }), invalid_row);
    EXPECT_FALSE(combo.state().mbListDirty);
}

TEST(RemoveItem, OfTheSelectedRowEmptiesTheTextAsAChangeOfTheProgram) {
    HeadlessControl combo;
    combo.add_rows(3);
    combo.selection().put_ListIndex(1);
    combo.journal().take_all();
    combo.items().RemoveItem(1);
    EXPECT_EQ(combo.object().Text(), u"");
    EXPECT_EQ(combo.state().mlListIndex, 1);
    EXPECT_EQ(combo.journal().take_all(), (Lines{"Changed(Text)", "Change"}));
}

TEST(RemoveItem, OfAnotherRowLeavesTextAndStoredIndexAlone) {
    HeadlessControl combo;
    combo.add_rows(3);
    combo.selection().put_ListIndex(1);
    combo.journal().take_all();
    combo.items().RemoveItem(0);
    EXPECT_EQ(combo.object().Text(), u"row 1");
    EXPECT_EQ(combo.state().mlListIndex, 1);
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(Clear, EmptiesRowsAndTextAndKeepsColumns) {
    HeadlessControl combo;
    combo.columns().put_Columns(2);
    combo.columns().put_ColumnHeader(2, u"second");
    combo.add_rows(3);
    combo.selection().put_ListIndex(2);
    combo.journal().take_all();
    combo.items().Clear();
    EXPECT_EQ(combo.items().ListCount(), 0);
    EXPECT_EQ(combo.object().Text(), u"");
    EXPECT_EQ(combo.columns().Columns(), 2);
    EXPECT_EQ(combo.list_view.header_text(2), u"second");
    EXPECT_EQ(combo.state().mlListIndex, 2);
    EXPECT_EQ(combo.selection().ListIndex(), -1);
    EXPECT_EQ(combo.items().NewIndex(), -1);
    EXPECT_FALSE(combo.state().mbListDirty);
    EXPECT_FALSE(combo.state().mbIgnoreChange);
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(Text)"});
}

TEST(Clear, LeavesTheListAsVisibleAsItWas) {
    HeadlessControl combo;
    combo.add_rows(2);
    combo.list_view.set_visible(true);
    combo.items().Clear();
    EXPECT_TRUE(combo.list_view.visible());
    combo.list_view.set_visible(false);
    combo.items().Clear();
    EXPECT_FALSE(combo.list_view.visible());
}

TEST(ClearAll, LeavesOneColumnWithoutCaptionOrWidth) {
    HeadlessControl combo;
    combo.site.width = 2400;
    combo.columns().put_Columns(3);
    combo.columns().put_ColumnHeader(1, u"first");
    combo.columns().put_ColumnWidth(1, 500);
    combo.add_rows(2);
    combo.journal().take_all();
    combo.items().ClearAll();
    EXPECT_EQ(combo.items().ListCount(), 0);
    EXPECT_EQ(combo.columns().Columns(), 1);
    EXPECT_EQ(combo.columns().ColumnHeader(1), u"");
    EXPECT_EQ(combo.state().masngColumnWidth[0], -1);
    EXPECT_EQ(combo.list_view.header_count(), 1);
    EXPECT_EQ(combo.list_view.header_width(1), 2400);
    EXPECT_EQ(combo.object().Text(), u"");
    EXPECT_EQ(combo.journal().take_all(), (Lines{"Changed(Columns)", "Changed(Text)"}));
}

TEST(ClearAll, TakesTheOnlyColumnsCaptionFromTheListToo) {
    HeadlessControl combo;
    combo.site.width = 2400;
    combo.columns().put_Columns(1);
    combo.columns().put_ColumnHeader(1, u"only");
    combo.columns().put_ColumnWidth(1, 500);
    combo.items().ClearAll();
    EXPECT_EQ(combo.list_view.header_text(1), u"");
    EXPECT_EQ(combo.list_view.header_width(1), 2400);
}

TEST(ClearAll, KeepsHiddenAndLockedFlags) {
    HeadlessControl combo;
    combo.columns().put_Columns(3);
    combo.columns().put_ColumnHidden(2, true);
    combo.columns().put_ColumnLocked(3, true);
    combo.items().ClearAll();
    EXPECT_TRUE(combo.columns().ColumnHidden(2));
    EXPECT_TRUE(combo.columns().ColumnLocked(3));
}

TEST(ItemData, IsZeroUntilGiven) {
    HeadlessControl combo;
    combo.add_rows(2);
    EXPECT_EQ(combo.items().ItemData(0), 0);
    combo.items().put_ItemData(0, 7);
    combo.items().put_ItemData(1, -2147483648);
    EXPECT_EQ(combo.items().ItemData(0), 7);
    EXPECT_EQ(combo.items().ItemData(1), -2147483648);
    combo.items().put_ItemData(1, 2147483647);
    EXPECT_EQ(combo.items().ItemData(1), 2147483647);
}

TEST(ItemData, OfARowThatIsNotThereIsAnInvalidIndex) {
    HeadlessControl combo;
    combo.add_rows(1);
    EXPECT_EQ(failure_of([&] { combo.items().ItemData(1); }), invalid_row);
    EXPECT_EQ(failure_of([&] { combo.items().ItemData(-1); }), invalid_row);
    EXPECT_EQ(failure_of([&] { combo.items().put_ItemData(1, 0); }), invalid_row);
    EXPECT_EQ(failure_of([&] { combo.items().put_ItemData(-1, 0); }), invalid_row);
}

TEST(ItemData, IsReportedAlthoughItIsNeverSaved) {
    HeadlessControl combo;
    combo.add_rows(1);
    combo.items().put_ItemData(0, 1);
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(ItemData)"});
}

TEST(ItemData, IsReadAfterSortingAndWrittenWithoutIt) {
    HeadlessControl combo;
    combo.list_view.rows().set_sorted(true);
    combo.state().mbSorted = true;
    combo.add(u"b");
    combo.add(u"a");
    const int refreshes = combo.list_view.refresh_count;
    combo.items().put_ItemData(0, 5); // still "b"
    EXPECT_EQ(combo.list_view.refresh_count, refreshes);
    EXPECT_EQ(combo.items().ItemData(1), 5); // sorted by now
    EXPECT_EQ(combo.list_view.refresh_count, refreshes + 1);
    EXPECT_TRUE(combo.state().mbListDirty);
    combo.state().mbListDirty = false;
    combo.items().ItemData(1);
    EXPECT_EQ(combo.list_view.refresh_count, refreshes + 1);
}

TEST(ItemData, MovesWithItsRow) {
    HeadlessControl combo;
    combo.add_rows(2);
    combo.items().put_ItemData(1, 5);
    combo.add(u"x", 0);
    EXPECT_EQ(combo.items().ItemData(2), 5);
    EXPECT_EQ(combo.items().ItemData(0), 0);
}

TEST(ShowItemToolTips, IsReportedEvenWhenItStaysTheSame) {
    HeadlessControl combo;
    combo.items().put_ShowItemToolTips(false);
    EXPECT_FALSE(combo.items().ShowItemToolTips());
    combo.items().put_ShowItemToolTips(true);
    EXPECT_TRUE(combo.items().ShowItemToolTips());
    EXPECT_EQ(combo.journal().take_all(), (Lines{"Changed(ShowItemToolTips)", "Changed(ShowItemToolTips)"}));
}

} // namespace vellora::test
