// The selected row and its text: by ListIndex, by a click, by Enter, and by what the list reports.
#include "support/headless/failure.h"
#include "support/headless/headless_control.h"

#include <gtest/gtest.h>

namespace vellora::test {

namespace {

const Failure invalid_index{381, u"", u""};

/// A list of `rows` rows that shows its second column, drop-down closed, journal empty.
struct TwoColumns : HeadlessControl {
    explicit TwoColumns(int rows) {
        columns().put_Columns(2);
        for (int row = 0; row < rows; ++row) {
            const std::u16string number{static_cast<char16_t>(u'0' + row)};
            add(TestVariant::array({u"a" + number, u"b" + number}));
        }
        selection().put_TextColumn(2);
        journal().take_all();
    }
};

} // namespace

TEST(ListIndex, OfANewControlIsMinusOne) {
    HeadlessControl combo;
    EXPECT_EQ(combo.selection().ListIndex(), -1);
}

TEST(ListIndex, PutsTheTextColumnIntoTheTextAndRaisesClickOnce) {
    TwoColumns combo(3);
    combo.selection().put_ListIndex(0);
    EXPECT_EQ(combo.object().Text(), u"b0");
    EXPECT_EQ(combo.selection().ListIndex(), 0);
    EXPECT_EQ(combo.list_view.rows().selected(), 0);
    EXPECT_FALSE(combo.state().mbIgnoreChange);
    EXPECT_EQ(combo.journal().take_all(), (Lines{"Changed(ListIndex)", "Changed(Text)", "Click"}));
}

TEST(ListIndex, SetToItsPresentValueDoesNothing) {
    TwoColumns combo(3);
    combo.selection().put_ListIndex(1);
    combo.object().put_Text(u"typed");
    combo.journal().take_all();
    combo.selection().put_ListIndex(1);
    EXPECT_EQ(combo.object().Text(), u"typed");
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(ListIndex, OfMinusOneEmptiesTheTextWithoutClick) {
    TwoColumns combo(3);
    combo.selection().put_ListIndex(2);
    combo.journal().take_all();
    combo.selection().put_ListIndex(-1);
    EXPECT_EQ(combo.object().Text(), u"");
    EXPECT_EQ(combo.list_view.rows().selected(), -1);
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(ListIndex)"});
}

TEST(ListIndex, OutsideTheRowsIsRefused) {
    TwoColumns combo(3);
    for (const std::int32_t index : {3, -2, 2147483647, static_cast<std::int32_t>(-2147483647 - 1)}) {
        EXPECT_EQ(failure_of([&] { combo.selection().put_ListIndex(index); }), invalid_index) << index;
    }
    EXPECT_EQ(combo.journal().take_all(), Lines{});
    EXPECT_EQ(combo.state().mlListIndex, -1);
}

TEST(ListIndex, CannotBeSetInADesigner) {
    HeadlessControl combo(Mode::design);
    EXPECT_EQ(failure_of([&] { combo.selection().put_ListIndex(-1); }), (Failure{387, u"", u""}));
    EXPECT_EQ(failure_of([&] { combo.selection().put_ListIndex(7); }), (Failure{387, u"", u""}));
}

TEST(ListIndex, IsFreeOfTheModeWhilePropertiesLoad) {
    HeadlessControl combo(Mode::design);
    combo.state().mbLoadingProperties = true;
    EXPECT_EQ(failure_of([&] { combo.selection().put_ListIndex(-1); }), no_failure);
    EXPECT_EQ(failure_of([&] { combo.selection().put_ListIndex(0); }), invalid_index);
}

TEST(ListIndex, ShowsWhatTheUserSelectedMeanwhile) {
    TwoColumns combo(3);
    combo.list_view.rows().select(2);
    EXPECT_EQ(combo.state().mlListIndex, -1);
    EXPECT_EQ(combo.selection().ListIndex(), 2);
    EXPECT_EQ(combo.state().mlListIndex, 2);
}

TEST(ListIndex, ComparesWithTheValueLastReadNotWithTheSelection) {
    TwoColumns combo(3);
    combo.list_view.rows().select(2);
    combo.selection().put_ListIndex(2); // stored: -1
    EXPECT_EQ(combo.journal().take_events(), Lines{"Click"});
}

TEST(ListIndex, KeepsTheStoredIndexWhenARowAboveIsRemoved) {
    TwoColumns combo(3);
    combo.selection().put_ListIndex(2);
    combo.items().RemoveItem(0);
    EXPECT_EQ(combo.state().mlListIndex, 2);
    EXPECT_EQ(combo.selection().ListIndex(), 1);
}

TEST(ListIndex, ScrollsSoThatRowsFollow) {
    HeadlessControl combo;
    combo.add_rows(20);
    combo.selection().put_ListIndex(4);  // position 5 + 8 rows - 3 = 10
    combo.selection().put_ListIndex(15); // 16 + 8 - 3 = 21: the last of 20
    EXPECT_EQ(combo.list_view.scrolled_to, (std::vector<std::int32_t>{9, 9, 19, 19}));
}

TEST(ListIndex, ScrollsToATargetRoundedHalfToEven) {
    HeadlessControl combo;
    combo.add_rows(20);
    combo.placement().put_DropDownHeight(4.5F);
    combo.selection().put_ListIndex(4); // 5 + 4.5 - 3 = 6.5: position 6
    combo.selection().put_ListIndex(5); // 6 + 4.5 - 3 = 7.5: position 8
    EXPECT_EQ(combo.list_view.scrolled_to, (std::vector<std::int32_t>{5, 5, 7, 7}));
}

TEST(ListIndex, NearTheTopOfALowDropDownFailsAsTheListViewFails) {
    HeadlessControl combo;
    combo.add_rows(5);
    combo.placement().put_DropDownHeight(2);
    combo.journal().take_all();
    // Position 1 + 2 - 3 = 0 does not exist; by then the index is stored and reported, the text not yet
    // written.
    EXPECT_EQ(failure_of([&] { combo.selection().put_ListIndex(0); }).number, 35600);
    EXPECT_EQ(combo.state().mlListIndex, 0);
    EXPECT_EQ(combo.list_view.rows().selected(), 0);
    EXPECT_EQ(combo.object().Text(), u"Vellora1");
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(ListIndex)"});
    combo.selection().put_ListIndex(1); // position 2 + 2 - 3 = 1
    EXPECT_EQ(combo.object().Text(), u"row 1");
}

TEST(ListIndex, OfARowWithoutTheTextColumnFailsAsTheListViewFails) {
    HeadlessControl combo;
    combo.columns().put_Columns(2);
    combo.selection().put_TextColumn(2);
    combo.add(u"only one");
    EXPECT_EQ(failure_of([&] { combo.selection().put_ListIndex(0); }).number, 35600);
    EXPECT_EQ(combo.journal().take_events(), Lines{});
}

TEST(ListIndex, RaisesNoChangeAndCompletesNothing) {
    TwoColumns combo(3);
    combo.text_field().put_AutoComplete(true);
    combo.journal().take_all();
    combo.selection().put_ListIndex(1);
    EXPECT_EQ(combo.journal().take_events(), Lines{"Click"});
}

TEST(TextColumn, OutsideTheColumnsIsRefusedAndKept) {
    TwoColumns combo(1);
    for (const std::int16_t column : Integers{0, -1, 3}) {
        EXPECT_EQ(failure_of([&] { combo.selection().put_TextColumn(column); }), (Failure{380, u"", u""}))
            << column;
    }
    EXPECT_EQ(combo.selection().TextColumn(), 2);
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(TextColumn, IsUsedFromTheNextSelectionOn) {
    TwoColumns combo(2);
    combo.selection().put_ListIndex(0);
    combo.journal().take_all();
    combo.selection().put_TextColumn(1);
    EXPECT_EQ(combo.object().Text(), u"b0");
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(TextColumn)"});
    combo.selection().put_ListIndex(1);
    EXPECT_EQ(combo.object().Text(), u"a1");
}

TEST(ListClick, TakesTheRowAndGivesTheFocusBack) {
    TwoColumns combo(3);
    combo.list_view.rows().select(1);
    combo.list_view.listener()->list_clicked();
    EXPECT_EQ(combo.object().Text(), u"b1");
    EXPECT_EQ(combo.desktop().focus(), combo.text_box(0).window());
    EXPECT_EQ(combo.journal().take_events(), Lines{"Click"});
}

TEST(ListClick, BesideTheRowsOnlyMovesTheFocus) {
    TwoColumns combo(3);
    combo.list_view.listener()->list_clicked();
    EXPECT_EQ(combo.desktop().focus(), combo.text_box(0).window());
    EXPECT_EQ(combo.journal().take_events(), Lines{});
    EXPECT_EQ(combo.object().Text(), u"Vellora1");
}

TEST(ListClick, OnTheSelectedRowRaisesClickAgain) {
    TwoColumns combo(3);
    combo.selection().put_ListIndex(1);
    combo.object().put_Text(u"typed");
    combo.journal().take_all();
    combo.list_view.listener()->list_clicked();
    EXPECT_EQ(combo.object().Text(), u"b1");
    EXPECT_EQ(combo.journal().take_events(), Lines{"Click"});
}

TEST(ListClick, ThatBelongsToACheckBoxSelectsNothingOnce) {
    TwoColumns combo(3);
    combo.list_view.rows().select(1);
    combo.list_view.rows().set_checked(1, true);
    combo.list_view.listener()->list_item_checked(1);
    combo.list_view.listener()->list_clicked();
    EXPECT_EQ(combo.object().Text(), u"Vellora1");
    EXPECT_EQ(combo.journal().take_events(), Lines{"ItemCheck(1, True)"});
    combo.list_view.listener()->list_clicked();
    EXPECT_EQ(combo.object().Text(), u"b1");
    EXPECT_EQ(combo.journal().take_events(), Lines{"Click"});
}

TEST(ListClick, WorksWhenTheTextFieldCannotTakeTheFocus) {
    TwoColumns combo(3);
    combo.text_box(0).set_enabled(false);
    combo.list_view.rows().select(1);
    combo.list_view.listener()->list_clicked();
    EXPECT_EQ(combo.journal().take_events(), Lines{"Click"});
}

TEST(ColumnClick, ReachesTheProgramEverySecondTime) {
    HeadlessControl combo;
    combo.columns().put_Columns(3);
    combo.journal().take_all();
    combo.list_view.listener()->list_column_clicked(1);
    EXPECT_EQ(combo.journal().take_events(), Lines{});
    combo.list_view.listener()->list_column_clicked(2);
    EXPECT_EQ(combo.journal().take_events(), Lines{"ColumnClick(2)"});
    combo.list_view.listener()->list_column_clicked(3);
    combo.list_view.listener()->list_column_clicked(3);
    EXPECT_EQ(combo.journal().take_events(), Lines{"ColumnClick(3)"});
}

TEST(ColumnClick, IsCountedForEachControlByItself) {
    World world;
    HeadlessControl first(world, Mode::run);
    HeadlessControl second(world, Mode::run, "second.");
    first.list_view.listener()->list_column_clicked(1);
    second.list_view.listener()->list_column_clicked(1);
    EXPECT_EQ(world.journal.take_events(), Lines{});
}

TEST(KeysInTheList, EnterSelectsLikeAClickAndIsSwallowed) {
    TwoColumns combo(3);
    combo.list_view.rows().select(2);
    std::int16_t key = 13;
    combo.list_view.listener()->list_key_press(key);
    EXPECT_EQ(key, 0);
    EXPECT_EQ(combo.object().Text(), u"b2");
    EXPECT_EQ(combo.desktop().focus(), combo.text_box(0).window());
    EXPECT_EQ(combo.journal().take_events(), Lines{"Click"});
}

TEST(KeysInTheList, OthersDoNothing) {
    TwoColumns combo(3);
    combo.list_view.rows().select(2);
    std::int16_t key = 27;
    combo.list_view.listener()->list_key_press(key);
    EXPECT_EQ(key, 27);
    std::int16_t code = 114;
    combo.list_view.listener()->list_key_down(code, 0);
    EXPECT_EQ(code, 114);
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

} // namespace vellora::test
