// What assistive software is told of the control, and what it may do.
#include "support/headless/drop_down_combo.h"

#include <gtest/gtest.h>

namespace vellora::test {

TEST(AssistiveSoftware, IsToldNameValueAndWhetherTheListIsOpen) {
    DropDownCombo combo;
    combo.object().put_Text(u"abc");
    Accessibility& told = combo.accessibility();
    EXPECT_EQ(told.name(), combo.site.display_name());
    EXPECT_EQ(told.value(), u"abc");
    EXPECT_FALSE(told.expanded());
    combo.drop_down().ShowList();
    EXPECT_TRUE(told.expanded());
}

TEST(AssistiveSoftware, HearsOfEachOpeningClosingAndChange) {
    using enum Announcement;
    DropDownCombo combo;
    combo.surface.announcements.clear();
    combo.drop_down().ShowList();
    combo.drop_down().HideList();
    EXPECT_EQ(combo.surface.announcements, (std::vector{list_opened_or_closed, list_opened_or_closed}));
    combo.surface.announcements.clear();
    combo.object().put_Text(u"abc");
    EXPECT_EQ(combo.surface.announcements, (std::vector{value_changed}));
}

TEST(AssistiveSoftware, PressesTheButtonToOpenAndToClose) {
    DropDownCombo combo;
    EXPECT_TRUE(combo.accessibility().press_button());
    EXPECT_TRUE(combo.is_open());
    EXPECT_TRUE(combo.accessibility().press_button());
    EXPECT_FALSE(combo.is_open());
    EXPECT_EQ(combo.journal().take_events(), opened_and_closed);
}

TEST(AssistiveSoftware, WritesTheText) {
    DropDownCombo combo;
    EXPECT_TRUE(combo.accessibility().write(u"new"));
    EXPECT_EQ(combo.object().Text(), u"new");
}

TEST(AssistiveSoftware, MayDoNoMoreThanAUser) {
    DropDownCombo combo;
    combo.object().put_Text(u"old");
    combo.text_properties().put_Locked(true);
    EXPECT_FALSE(combo.accessibility().write(u"new"));
    combo.text_properties().put_Locked(false);
    combo.appearance().put_Enabled(false);
    EXPECT_FALSE(combo.accessibility().write(u"new"));
    EXPECT_FALSE(combo.accessibility().press_button());
    EXPECT_EQ(combo.object().Text(), u"old");
    EXPECT_FALSE(combo.is_open());
}

} // namespace vellora::test
