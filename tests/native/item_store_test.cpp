// Rows: adding, reading, writing, removing, and the numbers kept with them.
#include "support/headless/failure.h"
#include "support/headless/headless_control.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace vellora::test {

namespace {

using Row = std::vector<std::u16string>;

const Failure invalid_row{381, u"", u""};
const Failure invalid_column{-2147219984, u"Vellora1", u"Invalid Column ItemIndex"};
const Failure no_such_cell{35600, u"", u""};

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

TEST(ReadingList, GivesTheTextColumnByDefault) {
    HeadlessControl combo;
    combo.columns().put_Columns(2);
    combo.add(texts({u"a", u"b"}));
    EXPECT_EQ(combo.list(0), u"a");
    combo.selection().put_TextColumn(2);
    EXPECT_EQ(combo.list(0), u"b");
    EXPECT_EQ(combo.list(0, 1), u"a");
}

TEST(ReadingList, OfARowThatIsNotThereIsAnInvalidIndex) {
    HeadlessControl combo;
    EXPECT_EQ(failure_of([&] { combo.list(0); }), invalid_row);
    combo.add_rows(2);
    EXPECT_EQ(failure_of([&] { combo.list(2); }), invalid_row);
    EXPECT_EQ(failure_of([&] { combo.list(-1); }), invalid_row);
    EXPECT_EQ(failure_of([&] { combo.list(32767); }), invalid_row);
}

TEST(ReadingList, OfAColumnThatIsNotThereNamesTheControl) {
    HeadlessControl combo;
    combo.columns().put_Columns(2);
    combo.add(texts({u"a", u"b"}));
    for (const std::int16_t column : Integers{0, -5, -32768, 3, 32767}) {
        EXPECT_EQ(failure_of([&] { combo.list(0, column); }), invalid_column) << column;
    }
    EXPECT_EQ(failure_of([&] { combo.list(9, 0); }), invalid_row);
}

TEST(ReadingList, GivesAWholeRow) {
    HeadlessControl combo;
    combo.columns().put_Columns(3);
    combo.add(texts({u"a", u"b", u"c"}));
    EXPECT_EQ(combo.row(0), (Row{u"a", u"b", u"c"}));
}

TEST(ReadingList, GivesAllRowsFromOneOn) {
    HeadlessControl combo;
    combo.columns().put_Columns(2);
    combo.add(texts({u"a1", u"a2"}));
    combo.add(texts({u"b1", u"b2"}));
    combo.add(texts({u"c1", u"c2"}));

    const auto rows_first = std::get<TextTable>(combo.items().List(1, -3));
    EXPECT_EQ(rows_first.first_extent, 2);
    EXPECT_EQ(rows_first.second_extent, 2);
    EXPECT_EQ(rows_first.cells, (Row{u"b1", u"b2", u"c1", u"c2"}));

    const auto columns_first = std::get<TextTable>(combo.items().List(0, -4));
    EXPECT_EQ(columns_first.first_extent, 2);
    EXPECT_EQ(columns_first.second_extent, 3);
    EXPECT_EQ(columns_first.cells, (Row{u"a1", u"b1", u"c1", u"a2", u"b2", u"c2"}));
}

TEST(ReadingList, OfRowsWithMissingCellsFailsAsTheListViewFails) {
    HeadlessControl combo;
    combo.columns().put_Columns(2);
    combo.add(texts({u"a1", u"a2"}));
    combo.add(u"b1");
    EXPECT_EQ(failure_of([&] { combo.items().List(0, -3); }), no_such_cell);
    EXPECT_EQ(failure_of([&] { combo.items().List(0, -4); }), no_such_cell);
    EXPECT_EQ(failure_of([&] { combo.items().List(1, -2); }), no_such_cell);
}

TEST(WritingList, GrowsTheListWithSingleSpaces) {
    HeadlessControl combo;
    combo.columns().put_Columns(3);
    combo.add(texts({u"a", u"b", u"c"}));
    combo.write(3, -1, u"x");
    EXPECT_EQ(combo.items().ListCount(), 4);
    EXPECT_EQ(combo.row(0), (Row{u"a", u"b", u"c"}));
    EXPECT_EQ(combo.row(1), (Row{u" ", u" ", u" "}));
    EXPECT_EQ(combo.row(2), (Row{u" ", u" ", u" "}));
    EXPECT_EQ(combo.row(3), (Row{u"x", u" ", u" "}));
}

TEST(WritingList, GoesToTheTextColumnOrTheOneAskedFor) {
    HeadlessControl combo;
    combo.columns().put_Columns(3);
    combo.selection().put_TextColumn(2);
    combo.write(0, -1, u"two");
    combo.write(0, 3, 3);
    combo.write(0, 1, u"one");
    EXPECT_EQ(combo.row(0), (Row{u"one", u"two", u"3"}));
}

TEST(WritingList, OfANegativeRowGrowsNothing) {
    HeadlessControl combo;
    EXPECT_EQ(failure_of([&] { combo.write(-1, -1, u"x"); }), invalid_row);
    EXPECT_EQ(failure_of([&] { combo.write(-32768, -3, texts({u"x"})); }), invalid_row);
    EXPECT_EQ(combo.items().ListCount(), 0);
}

TEST(WritingList, OfAnInvalidColumnFailsButHasGrownTheList) {
    HeadlessControl combo;
    combo.columns().put_Columns(2);
    for (const std::int16_t column : Integers{0, -2, -3, -4, -5, 3}) {
        EXPECT_EQ(failure_of([&] { combo.write(0, column, u"x"); }), invalid_column) << column;
    }
    EXPECT_EQ(combo.row(0), (Row{u" ", u" "}));
}

TEST(WritingList, ToACellTheRowLacksAddsNone) {
    HeadlessControl combo;
    combo.columns().put_Columns(2);
    combo.add(u"a");
    EXPECT_EQ(failure_of([&] { combo.write(0, 2, u"x"); }).number, 35600);
    EXPECT_EQ(combo.list_view.rows().sub_item_count(0), 0);
}

TEST(WritingList, WithASingleColumnOfRowsGoesByTheArraysOwnIndexes) {
    HeadlessControl combo;
    combo.write(0, -3, texts({u"p", u"q"}));
    EXPECT_EQ(combo.items().ListCount(), 2);
    EXPECT_EQ(combo.list(0), u"p");
    EXPECT_EQ(combo.list(1), u"q");
}

TEST(WritingList, WithRowsStillGrowsToTheIndexItDoesNotWrite) {
    HeadlessControl combo;
    combo.write(5, -3, texts({u"p"}));
    EXPECT_EQ(combo.items().ListCount(), 6);
    EXPECT_EQ(combo.list(0), u"p");
    EXPECT_EQ(combo.list(5), u" ");
}

TEST(WritingList, WithRowsAppendsRowsWithoutFurtherCells) {
    HeadlessControl combo;
    combo.columns().put_Columns(2);
    combo.write(0, -3, texts({u"p", u"q"}));
    EXPECT_EQ(combo.row(0), (Row{u"p", u" "}));
    EXPECT_EQ(combo.list(1, 1), u"q");
    EXPECT_EQ(combo.list_view.rows().sub_item_count(1), 0);
}

TEST(WritingList, AppendsOneRowForEveryIndexThatIsNotThere) {
    HeadlessControl combo;
    combo.add(u"a");
    combo.write(0, -3, TestVariant::array({{5, 6}}, {u"five", u"six"}));
    EXPECT_EQ(combo.items().ListCount(), 3);
    EXPECT_EQ(combo.list(0), u"a");
    EXPECT_EQ(combo.list(1), u"five");
    EXPECT_EQ(combo.list(2), u"six");
}

TEST(WritingList, WithATableWritesRowsFirst) {
    HeadlessControl combo;
    combo.columns().put_Columns(2);
    combo.write(0, -3, TestVariant::array({{0, 1}, {0, 1}}, {u"a1", u"a2", u"b1", u"b2"}));
    EXPECT_EQ(combo.row(0), (Row{u"a1", u"a2"}));
    EXPECT_EQ(combo.row(1), (Row{u"b1", u"b2"}));
}

TEST(WritingList, WithATableUnderAnyOtherColumnWritesColumnsFirst) {
    for (const std::int16_t column : Integers{-1, -2, -4, 0, 1, 2, 9, -5}) {
        HeadlessControl combo;
        combo.columns().put_Columns(2);
        combo.write(0, column,
                    TestVariant::array({{0, 1}, {0, 2}}, {u"a1", u"b1", u"c1", u"a2", u"b2", u"c2"}));
        EXPECT_EQ(combo.row(0), (Row{u"a1", u"a2"})) << column;
        EXPECT_EQ(combo.row(1), (Row{u"b1", u"b2"})) << column;
        EXPECT_EQ(combo.row(2), (Row{u"c1", u"c2"})) << column;
    }
}

TEST(WritingList, WithATableKeepsCellsBeyondTheColumns) {
    HeadlessControl combo;
    combo.write(0, -3, TestVariant::array({{0, 0}, {0, 2}}, {u"a", u"b", u"c"}));
    EXPECT_EQ(combo.row(0), (Row{u"a"}));
    EXPECT_EQ(combo.list_view.rows().sub_item_count(0), 2);
    EXPECT_EQ(combo.list_view.rows().text(0, 2), u"c");
}

TEST(WritingList, WithATableFromOneShiftsRowsAndCells) {
    HeadlessControl combo;
    combo.columns().put_Columns(3);
    combo.add(texts({u"k1", u"k2", u"k3"}));
    combo.add(texts({u"l1", u"l2", u"l3"}));
    // Rows 1 to 1, columns 1 to 2: the text takes column 1, sub-item 2 takes column 2.
    combo.write(0, -3, TestVariant::array({{1, 1}, {1, 2}}, {u"x", u"y"}));
    EXPECT_EQ(combo.row(0), (Row{u"k1", u"k2", u"k3"}));
    EXPECT_EQ(combo.row(1), (Row{u"x", u"l2", u"y"}));
}

TEST(WritingList, WithColumnsFromOneAddsTheCellAsTheNextOne) {
    HeadlessControl combo;
    combo.add(u"a");
    combo.write(0, -4, TestVariant::array({{1, 2}, {0, 0}}, {u"x", u"y"}));
    EXPECT_EQ(combo.list_view.rows().sub_item_count(0), 1);
    EXPECT_EQ(combo.list_view.rows().text(0, 0), u"x");
    EXPECT_EQ(combo.list_view.rows().text(0, 1), u"y");
}

TEST(WritingList, WithNegativeBoundsFailsAsTheListViewFails) {
    HeadlessControl combo;
    combo.add_rows(1);
    EXPECT_EQ(failure_of([&] {
                  combo.write(0, -3, TestVariant::array({{-1, 0}}, {u"x", u"y"}));
              }).number,
              35600);
    EXPECT_EQ(failure_of([&] {
                  combo.write(0, -3, TestVariant::array({{0, 0}, {-1, 0}}, {u"x", u"y"}));
              }).number,
              35600);
    EXPECT_EQ(combo.list(0), u"x");
}

TEST(WritingList, WithASingleDimensionUnderAnotherColumnWritesNothingAndSucceeds) {
    HeadlessControl combo;
    combo.add_rows(1);
    combo.state().mbListDirty = true;
    combo.write(0, -1, texts({u"p", u"q"}));
    EXPECT_EQ(combo.items().ListCount(), 1);
    EXPECT_EQ(combo.list(0), u"row 0");
    EXPECT_FALSE(combo.state().mbListDirty);
}

TEST(WritingList, ThatFailsHalfWayKeepsWhatItWrote) {
    HeadlessControl combo;
    EXPECT_EQ(failure_of([&] { combo.write(0, -3, texts({u"p", Null{}, u"r"})); }).number, 94);
    EXPECT_EQ(combo.items().ListCount(), 2);
    EXPECT_EQ(combo.list(0), u"p");
}

TEST(WritingList, OfAnArrayWithoutBoundsIsASubscriptOutOfRange) {
    HeadlessControl combo;
    EXPECT_EQ(failure_of([&] { combo.write(0, -3, TestVariant::array({}, {})); }).number, 9);
    EXPECT_EQ(failure_of([&] { combo.write(0, -1, TestVariant::array({}, {})); }).number, 9);
}

TEST(WritingList, NeverSetsToolTips) {
    HeadlessControl combo;
    combo.items().put_ShowItemToolTips(true);
    combo.write(0, -1, u"x");
    combo.write(0, -3, texts({u"p", u"q"}));
    EXPECT_EQ(combo.list_view.rows().tool_tip(0, 0), u"");
    EXPECT_EQ(combo.list_view.rows().tool_tip(1, 0), u"");
}

TEST(WritingList, MarksASortedListForSorting) {
    HeadlessControl combo;
    combo.state().mbSorted = true;
    combo.write(0, -1, u"x");
    EXPECT_TRUE(combo.state().mbListDirty);
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
