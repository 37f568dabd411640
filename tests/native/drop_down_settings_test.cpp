// The properties that steer the drop-down's place and look.
#include "support/headless/failure.h"
#include "support/headless/headless_control.h"

#include <gtest/gtest.h>

#include <limits>

namespace vellora::test {

namespace {

const Failure invalid_value{380, u"", u""};

} // namespace

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
