// Opening and closing the list: what does it, in which order things happen, and what cannot happen twice.
#include "support/headless/drop_down_combo.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vellora::test {

TEST(Opening, GoesThroughItsStepsInOrder) {
    DropDownCombo combo;
    combo.drop_down().ShowList();
    EXPECT_EQ(combo.journal().take_all(),
              (Lines{"send list 0x101F 0 0", "create popup 100,221 199x76", "parent of list popup",
                     "show popup", "focus list", "hook list", "send form 0x0086 1 1", "DropDown(open)"}));
    EXPECT_TRUE(combo.is_open());
}

TEST(Opening, OfAControlThatDoesNotShowDoesNothing) {
    DropDownCombo combo;
    combo.surface.is_shown = false;
    combo.drop_down().ShowList();
    EXPECT_FALSE(combo.is_open());
    EXPECT_EQ(combo.button(0).value(), 0);
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(Opening, OfAResizableDropDownIsWholeBeforeItShows) {
    DropDownCombo combo;
    combo.state().mbAllowResize = true;
    combo.drop_down().ShowList();
    EXPECT_EQ(combo.journal().take_all(),
              (Lines{"send list 0x101F 0 0", "create popup 100,221 199x76", "parent of list popup",
                     "parent of frame popup", "move popup 100,221 199x92", "show popup", "focus list",
                     "hook list", "send form 0x0086 1 1", "DropDown(open)"}));
}

TEST(Closing, GoesThroughItsStepsInOrder) {
    DropDownCombo combo;
    combo.drop_down().ShowList();
    combo.journal().take_all();
    combo.drop_down().HideList();
    EXPECT_EQ(combo.journal().take_all(),
              (Lines{"focus text 0", "unhook list", "parent of list surface", "destroy popup",
                     "send form 0x0086 1 1", "DropDown(closed)"}));
    EXPECT_FALSE(combo.is_open());
}

TEST(Closing, OfAResizableDropDownBringsTheFrameBackFirst) {
    DropDownCombo combo;
    combo.state().mbAllowResize = true;
    combo.drop_down().ShowList();
    combo.journal().take_all();
    combo.drop_down().HideList();
    EXPECT_EQ(combo.journal().take_all(),
              (Lines{"focus text 0", "unhook list", "parent of frame surface", "parent of list surface",
                     "destroy popup", "send form 0x0086 1 1", "DropDown(closed)"}));
}

TEST(Opening, SelectsTheWholeText) {
    DropDownCombo combo;
    combo.object().put_Text(u"abc");
    combo.text_properties().put_SelStart(3);
    combo.drop_down().ShowList();
    EXPECT_EQ(combo.text_properties().SelStart(), 0);
    EXPECT_EQ(combo.text_properties().SelLength(), 3);
}

TEST(Opening, TakesTheWidthOfHiddenColumnsAway) {
    DropDownCombo combo;
    combo.columns().put_Columns(3);
    combo.columns().put_ColumnWidth(2, 600);
    combo.columns().put_ColumnHidden(2, true);
    combo.drop_down().ShowList();
    EXPECT_EQ(combo.list_view.header_width(2), 0.0F);
    EXPECT_GT(combo.list_view.header_width(1), 0.0F);
    EXPECT_EQ(combo.state().masngColumnWidth[1], 600.0F);
}

TEST(Opening, SizesTheListBeforeItsColumnsAndHidesColumnsLast) {
    DropDownCombo combo;
    combo.columns().put_ColumnHidden(1, true);
    combo.auto_size().put_AutoSize(vlContents);
    combo.journal().take_all();
    combo.drop_down().ShowList();
    const Lines calls = combo.journal().take_system();
    ASSERT_GE(calls.size(), 3U);
    EXPECT_EQ(calls[0], "send list 0x101F 0 0");
    EXPECT_EQ(calls[1], "send list 0x101E 0 -1");
    EXPECT_EQ(calls[2].substr(0, 12), "create popup");
    EXPECT_EQ(combo.list_view.header_width(1), 0.0F);
}

TEST(Opening, SortsRowsThatAreOutOfOrder) {
    DropDownCombo combo;
    combo.sort_and_search().put_Sorted(true);
    combo.add(u"a first row");
    ASSERT_TRUE(combo.state().mbListDirty);
    const int refreshes = combo.list_view.refresh_count;
    combo.drop_down().ShowList();
    EXPECT_EQ(combo.list(0), u"a first row");
    EXPECT_EQ(combo.list_view.refresh_count, refreshes + 1);
    EXPECT_FALSE(combo.state().mbListDirty);
}

TEST(Opening, LeavesSettledRowsAlone) {
    DropDownCombo combo;
    const int refreshes = combo.list_view.refresh_count;
    combo.drop_down().ShowList();
    EXPECT_EQ(combo.list_view.refresh_count, refreshes);
}

TEST(Opening, BuildsTheHeadersOfANewControl) {
    HeadlessControl combo;
    combo.drop_down().ShowList();
    EXPECT_EQ(combo.list_view.header_count(), 1);
}

TEST(Opening, DoesNothingWhereTheControlIsNowhereOnTheScreen) {
    DropDownCombo combo;
    combo.user32.without_rect = combo.surface.window();
    combo.drop_down().ShowList();
    EXPECT_FALSE(combo.is_open());
    EXPECT_EQ(combo.button_look(), "raised");
    EXPECT_EQ(combo.journal().take_events(), Lines{});
    combo.user32.without_rect = 0;
    combo.drop_down().ShowList();
    EXPECT_TRUE(combo.is_open());
    EXPECT_EQ(combo.journal().take_events(), opened);
}

TEST(Opening, WithoutAWindowFromTheSystemLeavesEverythingClosed) {
    DropDownCombo combo;
    combo.user32.popups_fail = true;
    combo.drop_down().ShowList();
    EXPECT_EQ(combo.desktop().at(combo.list_view.window()).parent, combo.surface.window());
    EXPECT_FALSE(combo.list_view.visible());
    EXPECT_EQ(combo.button_look(), "raised");
    EXPECT_EQ(combo.journal().take_events(), Lines{});
    combo.drop_down().HideList();
    EXPECT_EQ(combo.journal().take_events(), Lines{});
    combo.user32.popups_fail = false;
    combo.drop_down().ShowList();
    EXPECT_EQ(combo.journal().take_events(), opened);
}

TEST(Opening, OfADisabledControlCanStillBeClosed) {
    DropDownCombo combo;
    combo.appearance().put_Enabled(false);
    combo.drop_down().ShowList();
    EXPECT_TRUE(combo.is_open());
    combo.drop_down().HideList();
    EXPECT_FALSE(combo.is_open());
    EXPECT_EQ(combo.journal().take_events(), opened_and_closed);
}

TEST(Closing, ComesWithDisablingTheControl) {
    DropDownCombo combo;
    combo.drop_down().ShowList();
    combo.appearance().put_Enabled(false);
    EXPECT_FALSE(combo.is_open());
    EXPECT_EQ(combo.journal().take_events(), opened_and_closed);
    EXPECT_EQ(combo.button_look(), "raised");
}

TEST(Opening, OfAControlDisabledInADesignerWorksByMouse) {
    DropDownCombo combo(vlNormal, Mode::design);
    combo.appearance().put_Enabled(false); // in a designer only the text field: the button still opens
    combo.journal().take_all();
    combo.user.click_button();
    EXPECT_TRUE(combo.is_open());
    EXPECT_EQ(combo.journal().take_events(), opened);
}

TEST(Opening, StopsWhenShowingTheWindowClosesTheList) {
    DropDownCombo combo;
    combo.user32.when_popup_shows = [&] { combo.drop_down().HideList(); };
    combo.journal().take_all();
    combo.drop_down().ShowList();
    EXPECT_FALSE(combo.is_open());
    EXPECT_EQ(combo.desktop().count("popup"), 0U);
    EXPECT_EQ(combo.journal().take_events(), Lines{});
    EXPECT_NE(combo.desktop().focus(), combo.list_view.window());
    combo.user32.when_popup_shows = nullptr;
    combo.expect_in_order();
}

TEST(Opening, StopsWhenTheFocusChangeClosesTheList) {
    DropDownCombo combo;
    combo.desktop().set_focus(combo.world().other);
    combo.world().when_other_loses_focus = [&] { combo.drop_down().HideList(); };
    combo.drop_down().ShowList();
    EXPECT_FALSE(combo.is_open());
    EXPECT_EQ(combo.desktop().at(combo.list_view.window()).procedure, procedure::own);
    EXPECT_EQ(combo.desktop().count("popup"), 0U);
    EXPECT_EQ(combo.button_look(), "raised");
    const Lines events = combo.journal().take_events();
    EXPECT_EQ(std::count(events.begin(), events.end(), "DropDown(open)"),
              std::count(events.begin(), events.end(), "DropDown(closed)"));
    combo.world().when_other_loses_focus = nullptr;
    combo.drop_down().ShowList();
    EXPECT_EQ(combo.journal().take_events(), opened);
}

TEST(Opening, WatchesTheFormUntilTheListCloses) {
    DropDownCombo combo;
    combo.drop_down().ShowList();
    EXPECT_EQ(combo.form_watch.watched(), combo.world().form);
    combo.form_watch.disturb();
    EXPECT_FALSE(combo.is_open());
    EXPECT_EQ(combo.form_watch.watched(), 0);
    EXPECT_EQ(combo.journal().take_events(), opened_and_closed);
}

TEST(ShowList, OnAnOpenListOpensNoSecondOne) {
    DropDownCombo combo;
    combo.drop_down().ShowList();
    combo.drop_down().ShowList();
    EXPECT_TRUE(combo.is_open());
    EXPECT_EQ(combo.desktop().count("popup"), 1U);
    EXPECT_EQ(combo.journal().take_events(), opened);
}

TEST(ShowList, WorksInADesigner) {
    DropDownCombo combo(vlNormal, Mode::design);
    combo.drop_down().ShowList();
    EXPECT_EQ(combo.journal().take_events(), opened);
}

TEST(HideList, OnAClosedListRaisesNothing) {
    DropDownCombo combo;
    combo.drop_down().HideList();
    combo.drop_down().HideList();
    EXPECT_EQ(combo.journal().take_events(), Lines{});
    EXPECT_EQ(combo.button_look(), "raised");
}

TEST(HideList, TurnsTheArrowDownInToggleStyleOnly) {
    DropDownCombo toggle(vlToggle);
    toggle.button(0).set_caption(u"5");
    toggle.drop_down().HideList();
    EXPECT_EQ(toggle.button(0).caption(), u"6");

    DropDownCombo normal;
    normal.button(0).set_caption(u"x");
    normal.drop_down().HideList();
    EXPECT_EQ(normal.button(0).caption(), u"x");
}

TEST(OpeningAndClosing, AlternateAnyNumberOfTimes) {
    DropDownCombo combo;
    for (int round = 0; round < 3; ++round) {
        combo.drop_down().ShowList();
        EXPECT_EQ(combo.button_look(), "pressed");
        combo.drop_down().HideList();
        EXPECT_EQ(combo.button_look(), "raised");
        EXPECT_EQ(combo.journal().take_events(), opened_and_closed);
    }
}

} // namespace vellora::test
