// The drop button, what it shows, and two controls that share one open list.
#include "support/headless/drop_down_combo.h"

#include <gtest/gtest.h>

namespace vellora::test {

TEST(DropButton, OpensAndClosesOnClicks) {
    for (const vlButtonStyles style : {vlNormal, vlToggle}) {
        DropDownCombo combo(style);
        combo.user.click_button();
        EXPECT_TRUE(combo.is_open()) << style;
        EXPECT_EQ(combo.journal().take_events(), opened) << style;
        combo.user.click_button();
        EXPECT_FALSE(combo.is_open()) << style;
        EXPECT_EQ(combo.journal().take_events(), closed) << style;
        combo.user.click_button();
        EXPECT_TRUE(combo.is_open()) << style;
    }
}

TEST(DropButton, LooksPressedWhileTheListIsOpen) {
    DropDownCombo combo;
    EXPECT_EQ(combo.button_look(), "raised");
    combo.user.click_button();
    EXPECT_EQ(combo.button_look(), "pressed");
    combo.user.click_button();
    EXPECT_EQ(combo.button_look(), "raised");
    EXPECT_EQ(combo.button(0).value(), 0);
    EXPECT_EQ(combo.button(1).value(), 1);
}

TEST(DropButton, ShowsArrowsInToggleStyle) {
    DropDownCombo combo(vlToggle);
    EXPECT_EQ(combo.button_look(), "raised 6");
    combo.user.click_button();
    EXPECT_EQ(combo.button_look(), "pressed 5");
    combo.user.click_button();
    EXPECT_EQ(combo.button_look(), "raised 6");
}

TEST(DropButton, LooksRightHoweverTheListCloses) {
    for (const vlButtonStyles style : {vlNormal, vlToggle}) {
        const std::string raised = style == vlToggle ? "raised 6" : "raised";
        DropDownCombo combo(style);
        combo.drop_down().ShowList();
        combo.drop_down().HideList();
        EXPECT_EQ(combo.button_look(), raised);
        combo.drop_down().ShowList();
        combo.user.click_elsewhere();
        EXPECT_EQ(combo.button_look(), raised);
        combo.drop_down().ShowList();
        combo.user.click_row(1);
        EXPECT_EQ(combo.button_look(), raised);
        combo.drop_down().ShowList();
        combo.user.click_text();
        EXPECT_EQ(combo.button_look(), raised);
        combo.drop_down().ShowList();
        combo.user.press_key_in_list(115);
        EXPECT_EQ(combo.button_look(), raised);
    }
}

TEST(DropButton, PressedClosesTheListBeforeItIsReleased) {
    for (const vlButtonStyles style : {vlNormal, vlToggle}) {
        DropDownCombo combo(style);
        combo.drop_down().ShowList();
        combo.user.press_button();
        EXPECT_FALSE(combo.is_open()) << style;
        combo.user.release_button();
        EXPECT_FALSE(combo.is_open()) << style;
        EXPECT_EQ(combo.journal().take_events(), opened_and_closed) << style;
    }
}

TEST(DropButton, IsKnownToBeDownBetweenPressAndRelease) {
    DropDownCombo combo;
    combo.user.press_button();
    EXPECT_TRUE(combo.state().mbDropButtonDown);
    combo.user.release_button();
    EXPECT_FALSE(combo.state().mbDropButtonDown);
}

TEST(LeavingTheControl, ClearsTheTextSelection) {
    DropDownCombo combo;
    combo.user.click_text();
    EXPECT_EQ(combo.text_properties().SelLength(), 8);
    combo.user.click_elsewhere();
    EXPECT_EQ(combo.text_properties().SelLength(), 0);
    EXPECT_EQ(combo.journal().take_events(), Lines{});
}

TEST(LeavingTheControl, KeepsTheSelectionWhileTheDropButtonIsDown) {
    DropDownCombo combo;
    combo.user.click_text();
    combo.user.press_button();
    combo.drop_down().UserControl_ExitFocus();
    EXPECT_EQ(combo.text_properties().SelLength(), 8);
    combo.user.release_button();
    combo.drop_down().UserControl_ExitFocus();
    EXPECT_EQ(combo.text_properties().SelLength(), 0);
}

TEST(LeavingTheControl, DoesNotCloseTheList) {
    DropDownCombo combo;
    combo.drop_down().ShowList();
    combo.drop_down().UserControl_ExitFocus();
    EXPECT_TRUE(combo.is_open());
}

TEST(TwoControls, ShareOneOpenList) {
    World world;
    DropDownCombo first(world, "first.");
    DropDownCombo second(world, "second.");
    first.drop_down().ShowList();
    second.drop_down().ShowList();
    EXPECT_FALSE(first.is_open());
    EXPECT_FALSE(second.is_open());
    EXPECT_EQ(second.button_look(), "raised");
    EXPECT_EQ(world.journal.take_events(), (Lines{"first.DropDown(open)", "first.DropDown(closed)"}));
    second.drop_down().ShowList();
    EXPECT_TRUE(second.is_open());
    EXPECT_EQ(world.journal.take_events(), Lines{"second.DropDown(open)"});
}

TEST(TwoControls, OpenOneAfterTheOtherByMouse) {
    World world;
    DropDownCombo first(world, "first.");
    DropDownCombo second(world, "second.");
    first.user.click_button();
    second.user.click_button();
    EXPECT_FALSE(first.is_open());
    EXPECT_TRUE(second.is_open());
    EXPECT_EQ(world.journal.take_events(),
              (Lines{"first.DropDown(open)", "first.DropDown(closed)", "second.DropDown(open)"}));
}

TEST(TwoControls, DoNotCloseEachOthersListWithHideList) {
    World world;
    DropDownCombo first(world, "first.");
    DropDownCombo second(world, "second.");
    first.drop_down().ShowList();
    world.journal.take_all();
    second.drop_down().subHideListView();
    EXPECT_TRUE(first.is_open());
    EXPECT_EQ(world.journal.take_events(), Lines{});
}

} // namespace vellora::test
