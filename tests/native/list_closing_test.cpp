// What closes an open list, and what leaves it open.
#include "support/headless/drop_down_combo.h"

#include <gtest/gtest.h>

namespace vellora::test {

TEST(List, ClosesWhenTheFocusGoesElsewhere) {
    DropDownCombo combo;
    combo.drop_down().ShowList();
    combo.user.click_elsewhere();
    EXPECT_FALSE(combo.is_open());
    EXPECT_EQ(combo.desktop().focus(), combo.world().other);
    EXPECT_EQ(combo.desktop().count("popup"), 0U);
    EXPECT_EQ(combo.journal().take_events(), opened_and_closed);
}

TEST(List, ClosesWhenTheFocusGoesToNoWindowAtAll) {
    DropDownCombo combo;
    combo.drop_down().ShowList();
    combo.desktop().set_focus(0);
    EXPECT_FALSE(combo.is_open());
    EXPECT_EQ(combo.journal().take_events(), opened_and_closed);
}

TEST(List, ClosesAfterTheClickOfAChosenRow) {
    DropDownCombo combo;
    combo.drop_down().ShowList();
    combo.user.click_row(1);
    EXPECT_EQ(combo.object().Text(), u"row 1");
    EXPECT_EQ(combo.desktop().focus(), combo.text_box(0).window());
    EXPECT_EQ(combo.journal().take_events(), (Lines{"DropDown(open)", "Click", "DropDown(closed)"}));
}

TEST(List, ClosesWithEnterLikeWithAClick) {
    DropDownCombo combo;
    combo.drop_down().ShowList();
    combo.list_view.rows().select(2);
    combo.user.press_key_in_list(13);
    EXPECT_EQ(combo.object().Text(), u"row 2");
    EXPECT_EQ(combo.journal().take_events(), (Lines{"DropDown(open)", "Click", "DropDown(closed)"}));
}

TEST(List, StaysOpenWhenACheckBoxIsClicked) {
    DropDownCombo combo;
    combo.drop_down().ShowList();
    combo.user.click_check_box(1);
    EXPECT_TRUE(combo.is_open());
    EXPECT_EQ(combo.journal().take_events(), (Lines{"DropDown(open)", "ItemCheck(1, True)"}));
}

TEST(List, ClosesWithF4ButNotWithModifiers) {
    DropDownCombo combo;
    combo.drop_down().ShowList();
    for (const std::int16_t shift : Integers{1, 2, 4, 7}) {
        combo.user.press_key_in_list(115, shift);
        EXPECT_TRUE(combo.is_open()) << shift;
    }
    combo.user.press_key_in_list(115);
    EXPECT_FALSE(combo.is_open());
    EXPECT_EQ(combo.journal().take_events(), opened_and_closed);
}

TEST(List, ClosesWithTabWhichTheTextFieldHandsOn) {
    for (const std::int16_t shift : Integers{0, 1}) {
        DropDownCombo combo;
        combo.drop_down().ShowList();
        combo.journal().take_all();
        combo.user.press_key_in_list(9, shift);
        EXPECT_FALSE(combo.is_open());
        const Lines lines = combo.journal().take_all();
        ASSERT_FALSE(lines.empty());
        EXPECT_EQ(lines.back(), "post text 0 0x0100 9 1");
    }
}

TEST(List, OpensWithF4InTheTextField) {
    DropDownCombo combo;
    EXPECT_EQ(combo.user.press_key(115), 0);
    EXPECT_TRUE(combo.is_open());
    EXPECT_EQ(combo.journal().take_events(), opened);
}

TEST(List, ClosesWhenTheControlItselfLosesTheFocus) {
    DropDownCombo combo;
    combo.drop_down().ShowList();
    combo.drop_down().UserControl_LostFocus();
    EXPECT_FALSE(combo.is_open());
    EXPECT_EQ(combo.journal().take_events(), opened_and_closed);
}

TEST(List, GoesWithTheControlsWindow) {
    DropDownCombo combo;
    combo.drop_down().ShowList();
    combo.desktop().destroy(combo.surface.window());
    EXPECT_FALSE(combo.is_open());
    EXPECT_EQ(combo.desktop().count("popup"), 0U);
    EXPECT_EQ(combo.journal().take_events(), opened_and_closed);
}

} // namespace vellora::test
