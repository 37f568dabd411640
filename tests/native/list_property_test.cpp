// Reading and writing rows through List: single cells, whole rows, tables.
#include "support/headless/failure.h"
#include "support/headless/headless_control.h"

#include <gtest/gtest.h>

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

} // namespace vellora::test
