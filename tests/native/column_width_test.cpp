// The widths of the columns, and hiding a column, which takes its width away for a while.
#include "support/headless/failure.h"
#include "support/headless/headless_control.h"

#include <gtest/gtest.h>

namespace vellora::test {

namespace {

const Failure invalid_count{-2147219983, u"Vellora1",
                            u"Invalid Columns Value. Value must be between 1 and 50"};
const Failure invalid_width_index{-2147219983, u"Vellora1",
                                  u"Invalid Columns Value. Value must be between 1 and 10"};
const Failure out_of_range{9, u"", u""};

} // namespace

TEST(ColumnWidth, IsAppliedStoredAndReported) {
    HeadlessControl combo;
    combo.columns().put_Columns(2);
    combo.journal().take_all();
    combo.columns().put_ColumnWidth(2, 615);
    EXPECT_EQ(combo.list_view.header_width(2), 615.0F);
    EXPECT_EQ(combo.columns().ColumnWidth(2), 615.0F);
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(ColumnWidth)"});
}

TEST(ColumnWidth, ReadStoresWhatTheUserDragged) {
    HeadlessControl combo;
    combo.columns().put_Columns(2);
    combo.columns().put_ColumnWidth(1, 600);
    combo.list_view.set_header_width(1, 900);
    EXPECT_EQ(combo.state().masngColumnWidth[0], 600.0F);
    EXPECT_EQ(combo.columns().ColumnWidth(1), 900.0F);
    EXPECT_EQ(combo.state().masngColumnWidth[0], 900.0F);
}

TEST(ColumnWidth, OfMinusOneSharesTheTextFieldLessOneThumb) {
    HeadlessControl combo;
    combo.columns().put_Columns(2);
    combo.text_box(0).move({15, 15, 3000, 285});
    combo.columns().put_ColumnWidth(2, -1);
    // (3000 - 15 * 16) / 2
    EXPECT_EQ(combo.list_view.header_width(2), 1380.0F);
    EXPECT_EQ(combo.state().masngColumnWidth[1], -1.0F);
}

TEST(ColumnWidth, OfMinusOneTakesTheLiveTextFieldsWidth) {
    HeadlessControl combo;
    combo.columns().put_Columns(1);
    combo.text_box(0).move({15, 15, 3000, 285});
    combo.text_box(2).move({15, 15, 1500, 285});
    combo.text_properties().put_Alignment(2);
    combo.columns().put_ColumnWidth(1, -1);
    EXPECT_EQ(combo.list_view.header_width(1), 1260.0F);
}

TEST(ColumnWidth, ReadAfterMinusOneIsNoLongerAutomatic) {
    HeadlessControl combo;
    combo.columns().put_Columns(2);
    combo.text_box(0).move({15, 15, 3000, 285});
    combo.columns().put_ColumnWidth(2, -1);
    EXPECT_EQ(combo.columns().ColumnWidth(2), 1380.0F);
    EXPECT_EQ(combo.state().masngColumnWidth[1], 1380.0F);
}

TEST(ColumnWidth, OfAColumnThatCannotBeIsRefused) {
    HeadlessControl combo;
    combo.columns().put_Columns(2);
    combo.journal().take_all();
    for (const std::int16_t column : Integers{0, -1, 51}) {
        EXPECT_EQ(failure_of([&] { combo.columns().put_ColumnWidth(column, 100); }), invalid_width_index)
            << column;
        EXPECT_EQ(failure_of([&] { combo.columns().ColumnWidth(column); }), out_of_range) << column;
    }
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(ColumnWidth, AboveTheLastHeaderFailsAsTheListViewFails) {
    HeadlessControl combo;
    combo.columns().put_Columns(2);
    combo.journal().take_all();
    EXPECT_EQ(failure_of([&] { combo.columns().put_ColumnWidth(3, 100); }).number, 35600);
    EXPECT_EQ(failure_of([&] { combo.columns().ColumnWidth(3); }).number, 35600);
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(ColumnWidth, IsIgnoredInADesigner) {
    HeadlessControl combo(Mode::design);
    combo.columns().put_Columns(2);
    const float before = combo.list_view.header_width(1);
    combo.journal().take_all();
    combo.columns().put_ColumnWidth(1, 100);
    EXPECT_EQ(failure_of([&] { combo.columns().put_ColumnWidth(0, 100); }), no_failure);
    EXPECT_EQ(combo.list_view.header_width(1), before);
    EXPECT_EQ(combo.state().masngColumnWidth[0], -1.0F);
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(ColumnWidth, OverflowsWithAThumbTooWide) {
    HeadlessControl combo;
    combo.columns().put_Columns(1);
    combo.user32.metrics[system_metric::scroll_bar_thumb_width] = 200'000'000; // 15 twips each
    EXPECT_EQ(failure_of([&] { combo.columns().put_ColumnWidth(1, -1); }).number, 6);
}

TEST(ColumnHidden, RemembersTheWidthAndLeavesTheHeader) {
    HeadlessControl combo;
    combo.columns().put_Columns(2);
    combo.list_view.set_header_width(2, 750);
    combo.journal().take_all();
    combo.columns().put_ColumnHidden(2, true);
    EXPECT_TRUE(combo.columns().ColumnHidden(2));
    EXPECT_EQ(combo.state().masngColumnWidth[1], 750.0F);
    EXPECT_EQ(combo.list_view.header_width(2), 750.0F);
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(ColumnHidden)"});
}

TEST(ColumnHidden, SetAgainDoesNotRememberTheZeroWidth) {
    HeadlessControl combo;
    combo.columns().put_Columns(2);
    combo.list_view.set_header_width(2, 750);
    combo.columns().put_ColumnHidden(2, true);
    combo.list_view.set_header_width(2, 0);
    combo.columns().put_ColumnHidden(2, true);
    EXPECT_EQ(combo.state().masngColumnWidth[1], 750.0F);
}

TEST(ColumnHidden, ClearedBringsTheWidthBack) {
    HeadlessControl combo;
    combo.columns().put_Columns(2);
    combo.list_view.set_header_width(2, 750);
    combo.columns().put_ColumnHidden(2, true);
    combo.list_view.set_header_width(2, 0);
    combo.journal().take_all();
    combo.columns().put_ColumnHidden(2, false);
    EXPECT_EQ(combo.list_view.header_width(2), 750.0F);
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(ColumnHidden)"});
}

TEST(ColumnHidden, ClearedWithAWidthOfZeroGivesAThousandTwips) {
    HeadlessControl combo;
    combo.columns().put_Columns(2);
    combo.columns().put_ColumnWidth(2, 0);
    combo.columns().put_ColumnHidden(2, true);
    combo.columns().put_ColumnHidden(2, false);
    EXPECT_EQ(combo.list_view.header_width(2), 1000.0F);
    EXPECT_EQ(combo.state().masngColumnWidth[1], 1000.0F);
}

TEST(ColumnHidden, ClearedOnAnAutomaticColumnSharesTheTextFieldAgain) {
    HeadlessControl combo;
    combo.columns().put_Columns(2);
    combo.text_box(0).move({15, 15, 3000, 285});
    combo.columns().put_ColumnHidden(2, true);
    combo.columns().put_ColumnWidth(2, -1);
    combo.list_view.set_header_width(2, 0);
    combo.journal().take_all();
    combo.columns().put_ColumnHidden(2, false);
    EXPECT_EQ(combo.list_view.header_width(2), 1380.0F);
    EXPECT_EQ(combo.state().masngColumnWidth[1], -1.0F);
    EXPECT_FALSE(combo.state().mbLoadingProperties);
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(ColumnHidden)"});
}

TEST(ColumnHidden, ClearedOnAShownAutomaticColumnLeavesItsWidth) {
    HeadlessControl combo;
    combo.columns().put_Columns(2);
    combo.list_view.set_header_width(2, 123);
    combo.columns().put_ColumnHidden(2, false);
    EXPECT_EQ(combo.list_view.header_width(2), 123.0F);
}

TEST(ColumnHidden, ClearedOnAShownColumnPutsItsOwnWidthBack) {
    HeadlessControl combo;
    combo.columns().put_Columns(2);
    combo.columns().put_ColumnWidth(2, 600);
    combo.list_view.set_header_width(2, 123);
    combo.columns().put_ColumnHidden(2, false);
    EXPECT_EQ(combo.list_view.header_width(2), 600.0F);
}

TEST(ColumnHidden, OfAColumnThatCannotBeIsRefused) {
    HeadlessControl combo;
    combo.columns().put_Columns(2);
    combo.journal().take_all();
    for (const std::int16_t column : Integers{0, -1, 51}) {
        EXPECT_EQ(failure_of([&] { combo.columns().put_ColumnHidden(column, true); }), invalid_count)
            << column;
        EXPECT_EQ(failure_of([&] { combo.columns().ColumnHidden(column); }), out_of_range) << column;
    }
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(ColumnHidden, CannotBeSetInADesignerOrWhileLoading) {
    HeadlessControl designed(Mode::design);
    designed.columns().put_ColumnHidden(1, true);
    EXPECT_EQ(failure_of([&] { designed.columns().put_ColumnHidden(0, true); }), no_failure);
    EXPECT_FALSE(designed.columns().ColumnHidden(1));
    EXPECT_EQ(designed.journal().take_all(), Lines{});

    HeadlessControl running;
    running.state().mbLoadingProperties = true;
    running.columns().put_ColumnHidden(1, true);
    EXPECT_FALSE(running.columns().ColumnHidden(1));
    EXPECT_EQ(failure_of([&] { running.columns().put_ColumnHidden(51, true); }), invalid_count);
}

TEST(ColumnHidden, AboveTheLastHeaderFailsAsTheListViewFails) {
    HeadlessControl combo;
    combo.columns().put_Columns(2);
    EXPECT_EQ(failure_of([&] { combo.columns().put_ColumnHidden(3, true); }).number, 35600);
    EXPECT_EQ(failure_of([&] { combo.columns().ColumnHidden(3); }), no_failure);
}

} // namespace vellora::test
