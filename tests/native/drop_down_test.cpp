// Opening and closing the list: what does it, in which order things happen, and what cannot happen twice.
#include "support/headless/failure.h"
#include "support/headless/headless_control.h"
#include "support/headless/user.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vellora::test {

namespace {

/// Three rows in a column of 1500 twips, journal empty.
struct Combo : HeadlessControl {
    explicit Combo(vlButtonStyles style = vlNormal) : Combo(style, Mode::run) {}
    Combo(vlButtonStyles style, Mode mode) : HeadlessControl(mode) { fill(style); }
    Combo(World& world, const std::string& prefix) : HeadlessControl(world, Mode::run, prefix) {
        fill(vlNormal);
    }

    bool is_open() { return state().mlStatic_hWnd != 0; }
    /// What the eye sees of the button: pressed, raised, or an arrow in toggle style.
    std::string button_look() {
        const bool first = button(0).visible();
        const bool second = button(1).visible();
        if (first == second) {
            return "two buttons or none";
        }
        if (state().mlButtonStyle == vlToggle) {
            return (button(0).value() == 1 ? "pressed " : "raised ") + readable(button(0).caption());
        }
        return second ? "pressed" : "raised";
    }

    User user{*this};

private:
    void fill(vlButtonStyles style) {
        state().mlButtonStyle = style;
        columns().put_ColumnWidth(1, 1500);
        add_rows(3);
        journal().take_all();
    }
};

const Lines opened{"DropDown(open)"};
const Lines closed{"DropDown(closed)"};
const Lines opened_and_closed{"DropDown(open)", "DropDown(closed)"};

} // namespace

TEST(Opening, GoesThroughItsStepsInOrder) {
    Combo combo;
    combo.drop_down().ShowList();
    EXPECT_EQ(combo.journal().take_all(),
              (Lines{"send list 0x101F 0 0", "create popup 100,221 199x76", "parent of list popup",
                     "focus list", "hook list", "send form 0x0086 1 1", "DropDown(open)"}));
    EXPECT_TRUE(combo.is_open());
}

TEST(Opening, OfAResizableDropDownAddsTheFrameAfterTheHook) {
    Combo combo;
    combo.state().mbAllowResize = true;
    combo.drop_down().ShowList();
    EXPECT_EQ(combo.journal().take_all(),
              (Lines{"send list 0x101F 0 0", "create popup 100,221 199x76", "parent of list popup",
                     "focus list", "hook list", "parent of frame popup", "move popup 100,221 199x92",
                     "send form 0x0086 1 1", "DropDown(open)"}));
}

TEST(Closing, GoesThroughItsStepsInOrder) {
    Combo combo;
    combo.drop_down().ShowList();
    combo.journal().take_all();
    combo.drop_down().HideList();
    EXPECT_EQ(combo.journal().take_all(),
              (Lines{"focus text 0", "unhook list", "parent of list surface", "destroy popup",
                     "send form 0x0086 1 1", "DropDown(closed)"}));
    EXPECT_FALSE(combo.is_open());
}

TEST(Closing, OfAResizableDropDownBringsTheFrameBackFirst) {
    Combo combo;
    combo.state().mbAllowResize = true;
    combo.drop_down().ShowList();
    combo.journal().take_all();
    combo.drop_down().HideList();
    EXPECT_EQ(combo.journal().take_all(),
              (Lines{"focus text 0", "unhook list", "parent of frame surface", "parent of list surface",
                     "destroy popup", "send form 0x0086 1 1", "DropDown(closed)"}));
}

TEST(Opening, SelectsTheWholeText) {
    Combo combo;
    combo.object().put_Text(u"abc");
    combo.text_properties().put_SelStart(3);
    combo.drop_down().ShowList();
    EXPECT_EQ(combo.text_properties().SelStart(), 0);
    EXPECT_EQ(combo.text_properties().SelLength(), 3);
}

TEST(Opening, TakesTheWidthOfHiddenColumnsAway) {
    Combo combo;
    combo.columns().put_Columns(3);
    combo.columns().put_ColumnWidth(2, 600);
    combo.columns().put_ColumnHidden(2, true);
    combo.drop_down().ShowList();
    EXPECT_EQ(combo.list_view.header_width(2), 0.0F);
    EXPECT_GT(combo.list_view.header_width(1), 0.0F);
    EXPECT_EQ(combo.state().masngColumnWidth[1], 600.0F);
}

TEST(Opening, SizesTheListBeforeItsColumnsAndHidesColumnsLast) {
    Combo combo;
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
    Combo combo;
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
    Combo combo;
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
    Combo combo;
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
    Combo combo;
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
    Combo combo;
    combo.appearance().put_Enabled(false);
    combo.drop_down().ShowList();
    EXPECT_TRUE(combo.is_open());
    combo.drop_down().HideList();
    EXPECT_FALSE(combo.is_open());
    EXPECT_EQ(combo.journal().take_events(), opened_and_closed);
}

TEST(Opening, OfAControlDisabledInADesignerWorksByMouse) {
    Combo combo(vlNormal, Mode::design);
    combo.appearance().put_Enabled(false); // in a designer only the text field: the button still opens
    combo.journal().take_all();
    combo.user.click_button();
    EXPECT_TRUE(combo.is_open());
    EXPECT_EQ(combo.journal().take_events(), opened);
}

TEST(Opening, StopsWhenTheFocusChangeClosesTheList) {
    Combo combo;
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
    Combo combo;
    combo.drop_down().ShowList();
    EXPECT_EQ(combo.form_watch.watched(), combo.world().form);
    combo.form_watch.disturb();
    EXPECT_FALSE(combo.is_open());
    EXPECT_EQ(combo.form_watch.watched(), 0);
    EXPECT_EQ(combo.journal().take_events(), opened_and_closed);
}

TEST(ShowList, OnAnOpenListOpensNoSecondOne) {
    Combo combo;
    combo.drop_down().ShowList();
    combo.drop_down().ShowList();
    EXPECT_TRUE(combo.is_open());
    EXPECT_EQ(combo.desktop().count("popup"), 1U);
    EXPECT_EQ(combo.journal().take_events(), opened);
}

TEST(ShowList, WorksInADesigner) {
    Combo combo(vlNormal, Mode::design);
    combo.drop_down().ShowList();
    EXPECT_EQ(combo.journal().take_events(), opened);
}

TEST(HideList, OnAClosedListRaisesNothing) {
    Combo combo;
    combo.drop_down().HideList();
    combo.drop_down().HideList();
    EXPECT_EQ(combo.journal().take_events(), Lines{});
    EXPECT_EQ(combo.button_look(), "raised");
}

TEST(HideList, TurnsTheArrowDownInToggleStyleOnly) {
    Combo toggle(vlToggle);
    toggle.button(0).set_caption(u"5");
    toggle.drop_down().HideList();
    EXPECT_EQ(toggle.button(0).caption(), u"6");

    Combo normal;
    normal.button(0).set_caption(u"x");
    normal.drop_down().HideList();
    EXPECT_EQ(normal.button(0).caption(), u"x");
}

TEST(OpeningAndClosing, AlternateAnyNumberOfTimes) {
    Combo combo;
    for (int round = 0; round < 3; ++round) {
        combo.drop_down().ShowList();
        EXPECT_EQ(combo.button_look(), "pressed");
        combo.drop_down().HideList();
        EXPECT_EQ(combo.button_look(), "raised");
        EXPECT_EQ(combo.journal().take_events(), opened_and_closed);
    }
}

TEST(DropButton, OpensAndClosesOnClicks) {
    for (const vlButtonStyles style : {vlNormal, vlToggle}) {
        Combo combo(style);
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
    Combo combo;
    EXPECT_EQ(combo.button_look(), "raised");
    combo.user.click_button();
    EXPECT_EQ(combo.button_look(), "pressed");
    combo.user.click_button();
    EXPECT_EQ(combo.button_look(), "raised");
    EXPECT_EQ(combo.button(0).value(), 0);
    EXPECT_EQ(combo.button(1).value(), 1);
}

TEST(DropButton, ShowsArrowsInToggleStyle) {
    Combo combo(vlToggle);
    EXPECT_EQ(combo.button_look(), "raised 6");
    combo.user.click_button();
    EXPECT_EQ(combo.button_look(), "pressed 5");
    combo.user.click_button();
    EXPECT_EQ(combo.button_look(), "raised 6");
}

TEST(DropButton, LooksRightHoweverTheListCloses) {
    for (const vlButtonStyles style : {vlNormal, vlToggle}) {
        const std::string raised = style == vlToggle ? "raised 6" : "raised";
        Combo combo(style);
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
        Combo combo(style);
        combo.drop_down().ShowList();
        combo.user.press_button();
        EXPECT_FALSE(combo.is_open()) << style;
        combo.user.release_button();
        EXPECT_FALSE(combo.is_open()) << style;
        EXPECT_EQ(combo.journal().take_events(), opened_and_closed) << style;
    }
}

TEST(DropButton, IsKnownToBeDownBetweenPressAndRelease) {
    Combo combo;
    combo.user.press_button();
    EXPECT_TRUE(combo.state().mbDropButtonDown);
    combo.user.release_button();
    EXPECT_FALSE(combo.state().mbDropButtonDown);
}

TEST(List, ClosesWhenTheFocusGoesElsewhere) {
    Combo combo;
    combo.drop_down().ShowList();
    combo.user.click_elsewhere();
    EXPECT_FALSE(combo.is_open());
    EXPECT_EQ(combo.desktop().focus(), combo.world().other);
    EXPECT_EQ(combo.desktop().count("popup"), 0U);
    EXPECT_EQ(combo.journal().take_events(), opened_and_closed);
}

TEST(List, ClosesWhenTheFocusGoesToNoWindowAtAll) {
    Combo combo;
    combo.drop_down().ShowList();
    combo.desktop().set_focus(0);
    EXPECT_FALSE(combo.is_open());
    EXPECT_EQ(combo.journal().take_events(), opened_and_closed);
}

TEST(List, ClosesAfterTheClickOfAChosenRow) {
    Combo combo;
    combo.drop_down().ShowList();
    combo.user.click_row(1);
    EXPECT_EQ(combo.object().Text(), u"row 1");
    EXPECT_EQ(combo.desktop().focus(), combo.text_box(0).window());
    EXPECT_EQ(combo.journal().take_events(), (Lines{"DropDown(open)", "Click", "DropDown(closed)"}));
}

TEST(List, ClosesWithEnterLikeWithAClick) {
    Combo combo;
    combo.drop_down().ShowList();
    combo.list_view.rows().select(2);
    combo.user.press_key_in_list(13);
    EXPECT_EQ(combo.object().Text(), u"row 2");
    EXPECT_EQ(combo.journal().take_events(), (Lines{"DropDown(open)", "Click", "DropDown(closed)"}));
}

TEST(List, StaysOpenWhenACheckBoxIsClicked) {
    Combo combo;
    combo.drop_down().ShowList();
    combo.user.click_check_box(1);
    EXPECT_TRUE(combo.is_open());
    EXPECT_EQ(combo.journal().take_events(), (Lines{"DropDown(open)", "ItemCheck(1, True)"}));
}

TEST(List, ClosesWithF4ButNotWithModifiers) {
    Combo combo;
    combo.drop_down().ShowList();
    for (const std::int16_t shift : Integers{1, 2, 4, 7}) {
        combo.user.press_key_in_list(115, shift);
        EXPECT_TRUE(combo.is_open()) << shift;
    }
    combo.user.press_key_in_list(115);
    EXPECT_FALSE(combo.is_open());
    EXPECT_EQ(combo.journal().take_events(), opened_and_closed);
}

TEST(List, OpensWithF4InTheTextField) {
    Combo combo;
    EXPECT_EQ(combo.user.press_key(115), 0);
    EXPECT_TRUE(combo.is_open());
    EXPECT_EQ(combo.journal().take_events(), opened);
}

TEST(List, ClosesWhenTheControlItselfLosesTheFocus) {
    Combo combo;
    combo.drop_down().ShowList();
    combo.drop_down().UserControl_LostFocus();
    EXPECT_FALSE(combo.is_open());
    EXPECT_EQ(combo.journal().take_events(), opened_and_closed);
}

TEST(List, GoesWithTheControlsWindow) {
    Combo combo;
    combo.drop_down().ShowList();
    combo.desktop().at(combo.list_view.window()).name = "list";
    combo.drop_down().subHideListView();
    EXPECT_EQ(combo.desktop().count("popup"), 0U);
    EXPECT_EQ(combo.journal().take_events(), opened_and_closed);
}

TEST(LeavingTheControl, ClearsTheTextSelection) {
    Combo combo;
    combo.user.click_text();
    EXPECT_EQ(combo.text_properties().SelLength(), 8);
    combo.user.click_elsewhere();
    EXPECT_EQ(combo.text_properties().SelLength(), 0);
    EXPECT_EQ(combo.journal().take_events(), Lines{});
}

TEST(LeavingTheControl, KeepsTheSelectionWhileTheDropButtonIsDown) {
    Combo combo;
    combo.user.click_text();
    combo.user.press_button();
    combo.drop_down().UserControl_ExitFocus();
    EXPECT_EQ(combo.text_properties().SelLength(), 8);
    combo.user.release_button();
    combo.drop_down().UserControl_ExitFocus();
    EXPECT_EQ(combo.text_properties().SelLength(), 0);
}

TEST(LeavingTheControl, DoesNotCloseTheList) {
    Combo combo;
    combo.drop_down().ShowList();
    combo.drop_down().UserControl_ExitFocus();
    EXPECT_TRUE(combo.is_open());
}

TEST(TwoControls, ShareOneOpenList) {
    World world;
    Combo first(world, "first.");
    Combo second(world, "second.");
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
    Combo first(world, "first.");
    Combo second(world, "second.");
    first.user.click_button();
    second.user.click_button();
    EXPECT_FALSE(first.is_open());
    EXPECT_TRUE(second.is_open());
    EXPECT_EQ(world.journal.take_events(),
              (Lines{"first.DropDown(open)", "first.DropDown(closed)", "second.DropDown(open)"}));
}

TEST(TwoControls, DoNotCloseEachOthersListWithHideList) {
    World world;
    Combo first(world, "first.");
    Combo second(world, "second.");
    first.drop_down().ShowList();
    world.journal.take_all();
    second.drop_down().subHideListView();
    EXPECT_TRUE(first.is_open());
    EXPECT_EQ(world.journal.take_events(), Lines{});
}

} // namespace vellora::test
