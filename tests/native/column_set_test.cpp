// How many columns there are, their captions, and which of them are locked.
#include "support/headless/failure.h"
#include "support/headless/headless_control.h"

#include <gtest/gtest.h>

namespace vellora::test {

namespace {

const Failure invalid_count{-2147219983, u"Vellora1",
                            u"Invalid Columns Value. Value must be between 1 and 50"};
const Failure invalid_index{-2147219984, u"Vellora1", u"Invalid Column ColumnIndex"};
const Failure out_of_range{9, u"", u""};

} // namespace

TEST(Columns, OutsideOneToFiftyAreRefused) {
    HeadlessControl combo;
    combo.add_rows(1);
    for (const std::int16_t count : Integers{0, -1, 51, 32767, -32768}) {
        EXPECT_EQ(failure_of([&] { combo.columns().put_Columns(count); }), invalid_count) << count;
    }
    EXPECT_EQ(combo.columns().Columns(), 1);
    EXPECT_EQ(combo.items().ListCount(), 1);
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(Columns, MayBeFifty) {
    HeadlessControl combo;
    combo.columns().put_Columns(50);
    EXPECT_EQ(combo.columns().Columns(), 50);
    EXPECT_EQ(combo.list_view.header_count(), 50);
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(Columns)"});
}

TEST(Columns, SetToTheirPresentCountKeepTheRows) {
    HeadlessControl combo;
    combo.columns().put_Columns(3);
    combo.add_rows(2);
    combo.journal().take_all();
    combo.columns().put_Columns(3);
    EXPECT_EQ(combo.items().ListCount(), 2);
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(Columns, SetToOneOnANewControlBuildTheHeader) {
    HeadlessControl combo;
    EXPECT_EQ(combo.list_view.header_count(), 0);
    combo.columns().put_Columns(1);
    EXPECT_EQ(combo.list_view.header_count(), 1);
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(Columns)"});
}

TEST(Columns, SetToAnotherCountEmptyTheList) {
    HeadlessControl combo;
    combo.columns().put_Columns(3);
    combo.add_rows(2);
    combo.columns().put_Columns(2);
    EXPECT_EQ(combo.items().ListCount(), 0);
}

TEST(Columns, ShareTheControlsWidthEqually) {
    HeadlessControl combo;
    combo.site.width = 3000;
    combo.columns().put_Columns(4);
    EXPECT_EQ(combo.list_view.header_width(1), 750.0F);
    EXPECT_EQ(combo.list_view.header_width(4), 750.0F);
    EXPECT_EQ(combo.state().masngColumnWidth[0], -1.0F);
    combo.columns().put_Columns(7);
    EXPECT_EQ(combo.list_view.header_width(7), 3000.0F / 7.0F);
}

TEST(Columns, KeepWidthsThatWereSet) {
    HeadlessControl combo;
    combo.site.width = 3000;
    combo.columns().put_Columns(3);
    combo.columns().put_ColumnWidth(2, 600);
    combo.columns().put_Columns(2);
    EXPECT_EQ(combo.list_view.header_width(1), 1500.0F);
    EXPECT_EQ(combo.list_view.header_width(2), 600.0F);
}

TEST(Columns, LoweredKeepCaptionsAndWidthsOfTheColumnsLeft) {
    HeadlessControl combo;
    combo.columns().put_Columns(5);
    combo.columns().put_ColumnHeader(3, u"third");
    combo.columns().put_ColumnHeader(4, u"fourth");
    combo.columns().put_ColumnWidth(4, 900);
    combo.columns().put_Columns(3);
    EXPECT_EQ(combo.list_view.header_text(3), u"third");
    EXPECT_EQ(combo.state().masColumnHeader[3], u"fourth");
    EXPECT_EQ(combo.state().masngColumnWidth[3], 900.0F);
}

TEST(Columns, RaisedStartTheAddedColumnsAfresh) {
    HeadlessControl combo;
    combo.columns().put_Columns(8);
    combo.columns().put_ColumnHeader(3, u"third");
    combo.columns().put_ColumnHeader(4, u"fourth");
    combo.columns().put_ColumnHeader(8, u"eighth");
    combo.columns().put_ColumnWidth(8, 900);
    combo.columns().put_Columns(3);
    combo.columns().put_Columns(5);
    EXPECT_EQ(combo.columns().ColumnHeader(3), u"third");
    EXPECT_EQ(combo.columns().ColumnHeader(4), u"");
    EXPECT_EQ(combo.state().masColumnHeader[7], u"");
    EXPECT_EQ(combo.state().masngColumnWidth[7], -1.0F);
}

TEST(Columns, RaisedKeepHiddenAndLockedFlags) {
    HeadlessControl combo;
    combo.columns().put_Columns(3);
    combo.columns().put_ColumnHidden(3, true);
    combo.columns().put_ColumnLocked(3, true);
    combo.columns().put_Columns(2);
    combo.columns().put_Columns(3);
    EXPECT_TRUE(combo.columns().ColumnHidden(3));
    EXPECT_TRUE(combo.columns().ColumnLocked(3));
}

TEST(Columns, CanBeSetInADesigner) {
    HeadlessControl combo(Mode::design);
    combo.columns().put_Columns(2);
    EXPECT_EQ(combo.list_view.header_count(), 2);
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(Columns)"});
}

TEST(ColumnHeader, ShowsInTheListAndIsReported) {
    HeadlessControl combo;
    combo.columns().put_Columns(2);
    combo.journal().take_all();
    combo.columns().put_ColumnHeader(2, u"Price");
    EXPECT_EQ(combo.columns().ColumnHeader(2), u"Price");
    EXPECT_EQ(combo.list_view.header_text(2), u"Price");
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(ColumnHeader)"});
}

TEST(ColumnHeader, IsTheStoredCaptionNotTheLists) {
    HeadlessControl combo;
    combo.columns().put_Columns(1);
    combo.columns().put_ColumnHeader(1, u"mine");
    combo.list_view.set_header_text(1, u"another");
    EXPECT_EQ(combo.columns().ColumnHeader(1), u"mine");
}

TEST(ColumnHeader, OutsideTheColumnsIsRefused) {
    HeadlessControl combo;
    combo.columns().put_Columns(3);
    combo.journal().take_all();
    for (const std::int16_t column : Integers{0, -1, 4, 51}) {
        EXPECT_EQ(failure_of([&] { combo.columns().ColumnHeader(column); }), invalid_index) << column;
        EXPECT_EQ(failure_of([&] { combo.columns().put_ColumnHeader(column, u"x"); }), invalid_index)
            << column;
    }
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(ColumnHeader, WorksInADesignerToo) {
    HeadlessControl combo(Mode::design);
    combo.columns().put_Columns(1);
    combo.columns().put_ColumnHeader(1, u"Name");
    EXPECT_EQ(combo.list_view.header_text(1), u"Name");
}

TEST(ColumnHeader, OfANewControlBuildsItsHeaders) {
    HeadlessControl combo;
    combo.columns().put_ColumnHeader(1, u"Name");
    EXPECT_EQ(combo.list_view.header_count(), 1);
    EXPECT_EQ(combo.list_view.header_text(1), u"Name");
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(ColumnHeader)"});
}

TEST(ColumnLocked, IsStoredAndReported) {
    HeadlessControl combo;
    combo.columns().put_ColumnLocked(50, true);
    EXPECT_TRUE(combo.columns().ColumnLocked(50));
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(ColumnLocked)"});
}

TEST(ColumnLocked, DoesNotKeepProgramsFromSizing) {
    HeadlessControl combo;
    combo.columns().put_Columns(1);
    combo.columns().put_ColumnLocked(1, true);
    combo.columns().put_ColumnWidth(1, 450);
    EXPECT_EQ(combo.list_view.header_width(1), 450.0F);
}

TEST(ColumnLocked, OfAColumnThatCannotBeIsRefused) {
    HeadlessControl combo;
    for (const std::int16_t column : Integers{0, -1, 51}) {
        EXPECT_EQ(failure_of([&] { combo.columns().put_ColumnLocked(column, true); }), invalid_count)
            << column;
        EXPECT_EQ(failure_of([&] { combo.columns().ColumnLocked(column); }), out_of_range) << column;
    }
}

TEST(ColumnLocked, IsIgnoredInADesigner) {
    HeadlessControl combo(Mode::design);
    combo.columns().put_ColumnLocked(1, true);
    EXPECT_EQ(failure_of([&] { combo.columns().put_ColumnLocked(0, true); }), no_failure);
    EXPECT_FALSE(combo.columns().ColumnLocked(1));
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(HideColumnHeaders, GoesToTheListAndIsReported) {
    HeadlessControl combo;
    combo.columns().put_HideColumnHeaders(true);
    EXPECT_TRUE(combo.columns().HideColumnHeaders());
    EXPECT_TRUE(combo.list_view.hide_column_headers());
    combo.columns().put_HideColumnHeaders(false);
    EXPECT_FALSE(combo.list_view.hide_column_headers());
    EXPECT_EQ(combo.journal().take_all(),
              (Lines{"Changed(HideColumnHeaders)", "Changed(HideColumnHeaders)"}));
}

TEST(ColumnSettings, ReportNothingWhileLoading) {
    HeadlessControl combo;
    combo.state().mbLoadingProperties = true;
    combo.columns().put_Columns(2);
    combo.columns().put_ColumnHeader(1, u"x");
    combo.columns().put_ColumnWidth(1, 100);
    combo.columns().put_ColumnLocked(1, true);
    combo.columns().put_HideColumnHeaders(true);
    EXPECT_EQ(combo.journal().take_all(), Lines{});
    EXPECT_TRUE(combo.columns().ColumnLocked(1));
}

} // namespace vellora::test
