// Handlers that do what they like: call any member, close what just opened, let go of the control.
#include "support/headless/failure.h"
#include "support/headless/headless_control.h"
#include "support/headless/user.h"

#include <gtest/gtest.h>

#include <memory>

namespace vellora::test {

namespace {

struct Combo : HeadlessControl {
    Combo() { fill(); }
    Combo(World& world, const std::string& prefix) : HeadlessControl(world, Mode::run, prefix) { fill(); }

    bool is_open() { return state().mlStatic_hWnd != 0; }
    /// Whether a list can be opened and closed again: the last word after any misbehaviour.
    void expect_in_order() {
        events.on_drop_down = nullptr;
        drop_down().HideList();
        journal().take_all();
        drop_down().ShowList();
        EXPECT_TRUE(is_open());
        drop_down().HideList();
        EXPECT_FALSE(is_open());
        EXPECT_EQ(journal().take_events(), (Lines{"DropDown(open)", "DropDown(closed)"}));
        EXPECT_TRUE(button(0).visible());
        EXPECT_FALSE(button(1).visible());
        EXPECT_EQ(button(0).value(), 0);
        EXPECT_EQ(desktop().count("popup"), 0U);
        EXPECT_EQ(desktop().at(list_view.window()).procedure, procedure::own);
    }

    User user{*this};

private:
    void fill() {
        columns().put_ColumnWidth(1, 1500);
        add_rows(3);
        journal().take_all();
    }
};

/// Runs `action` in the DropDown event of one state only.
std::function<void(DropDownState)> when(DropDownState state, std::function<void()> action) {
    return [state, action](DropDownState raised) {
        if (raised == state) {
            action();
        }
    };
}

} // namespace

TEST(DropDownHandler, ThatClosesTheListAtOnceGetsBothEvents) {
    Combo combo;
    combo.events.on_drop_down = when(DropDownState::open, [&] { combo.drop_down().HideList(); });
    combo.drop_down().ShowList();
    EXPECT_FALSE(combo.is_open());
    EXPECT_EQ(combo.journal().take_events(), (Lines{"DropDown(open)", "DropDown(closed)"}));
    combo.expect_in_order();
}

TEST(DropDownHandler, ThatClosesTheListAtOnceWorksForAMouseClickToo) {
    Combo combo;
    combo.events.on_drop_down = when(DropDownState::open, [&] { combo.drop_down().HideList(); });
    combo.user.click_button();
    EXPECT_FALSE(combo.is_open());
    combo.expect_in_order();
}

TEST(DropDownHandler, ThatMovesTheFocusClosesTheList) {
    Combo combo;
    combo.events.on_drop_down = when(DropDownState::open, [&] { combo.user.click_elsewhere(); });
    combo.drop_down().ShowList();
    EXPECT_FALSE(combo.is_open());
    EXPECT_EQ(combo.journal().take_events(), (Lines{"DropDown(open)", "DropDown(closed)"}));
    combo.expect_in_order();
}

TEST(DropDownHandler, ThatOpensAgainOpensNoSecondList) {
    Combo combo;
    combo.events.on_drop_down = when(DropDownState::open, [&] { combo.drop_down().ShowList(); });
    combo.drop_down().ShowList();
    EXPECT_TRUE(combo.is_open());
    EXPECT_EQ(combo.desktop().count("popup"), 1U);
    EXPECT_EQ(combo.journal().take_events(), Lines{"DropDown(open)"});
    combo.expect_in_order();
}

TEST(DropDownHandler, ThatClosesAndOpensAgainLeavesNothingStuck) {
    Combo combo;
    combo.events.on_drop_down = when(DropDownState::open, [&] {
        combo.drop_down().HideList();
        combo.drop_down().ShowList();
    });
    combo.drop_down().ShowList();
    combo.expect_in_order();
}

TEST(DropDownHandler, CannotReopenWhileTheListCloses) {
    Combo combo;
    combo.events.on_drop_down = when(DropDownState::closed, [&] { combo.drop_down().ShowList(); });
    combo.drop_down().ShowList();
    combo.drop_down().HideList();
    EXPECT_FALSE(combo.is_open());
    EXPECT_EQ(combo.journal().take_events(), (Lines{"DropDown(open)", "DropDown(closed)"}));
    combo.expect_in_order();
}

TEST(DropDownHandler, ThatClosesAgainWhileClosingGetsOneEvent) {
    Combo combo;
    combo.events.on_drop_down = when(DropDownState::closed, [&] { combo.drop_down().HideList(); });
    combo.drop_down().ShowList();
    combo.drop_down().HideList();
    EXPECT_EQ(combo.journal().take_events(), (Lines{"DropDown(open)", "DropDown(closed)"}));
    combo.expect_in_order();
}

TEST(DropDownHandler, MayOpenAnotherControlsListInstead) {
    World world;
    Combo first(world, "first.");
    Combo second(world, "second.");
    first.events.on_drop_down = when(DropDownState::open, [&] { second.drop_down().ShowList(); });
    first.drop_down().ShowList();
    EXPECT_FALSE(first.is_open());
    EXPECT_TRUE(second.is_open());
    second.drop_down().HideList();
    EXPECT_EQ(world.desktop.count("popup"), 0U);
    first.events.on_drop_down = nullptr;
    world.journal.take_all();
    first.drop_down().ShowList();
    EXPECT_EQ(world.journal.take_events(), Lines{"first.DropDown(open)"});
}

TEST(DropDownHandler, MayEmptyOrRefillTheList) {
    Combo combo;
    combo.events.on_drop_down = [&](DropDownState) {
        combo.items().ClearAll();
        combo.columns().put_Columns(4);
        combo.add_rows(2);
    };
    combo.drop_down().ShowList();
    EXPECT_TRUE(combo.is_open());
    combo.drop_down().HideList();
    EXPECT_EQ(combo.items().ListCount(), 2);
    combo.expect_in_order();
}

TEST(DropDownHandler, MayRaiseAnError) {
    Combo combo;
    for (const DropDownState state : {DropDownState::open, DropDownState::closed}) {
        combo.events.on_drop_down = when(state, [] { throw HostError(1000); });
        failure_of([&] { combo.drop_down().ShowList(); });
        failure_of([&] { combo.drop_down().HideList(); });
        combo.expect_in_order();
    }
}

TEST(DropDownHandler, MayLetGoOfTheControlOnOpening) {
    Combo combo;
    combo.events.on_drop_down = when(DropDownState::open, [&] { combo.release(); });
    {
        const auto caller = combo.hold();
        caller->drop_down().ShowList();
        EXPECT_TRUE(caller->state().mlStatic_hWnd != 0);
    }
    EXPECT_EQ(combo.desktop().count("popup"), 0U);
    EXPECT_EQ(combo.journal().take_events(), Lines{"DropDown(open)"});
    combo.create();
    combo.object().InitProperties();
    combo.expect_in_order();
}

TEST(DropDownHandler, MayLetGoOfTheControlOnClosing) {
    Combo combo;
    combo.drop_down().ShowList();
    combo.events.on_drop_down = when(DropDownState::closed, [&] { combo.release(); });
    combo.user.click_elsewhere();
    EXPECT_EQ(combo.hold(), nullptr);
    EXPECT_EQ(combo.desktop().count("popup"), 0U);
    combo.create();
    combo.object().InitProperties();
    combo.expect_in_order();
}

TEST(ReleasedControl, MayGoInAnyEventTheUserCauses) {
    using Act = std::function<void(Combo&)>;
    const std::vector<std::pair<const char*, Act>> cases{
        {"DropDown by mouse",
         [](Combo& combo) {
             combo.events.on_drop_down = when(DropDownState::open, [&] { combo.release(); });
             combo.user.click_button();
         }},
        {"DropDown by F4",
         [](Combo& combo) {
             combo.events.on_drop_down = when(DropDownState::open, [&] { combo.release(); });
             combo.user.press_key(115);
         }},
        {"Click in the list",
         [](Combo& combo) {
             combo.drop_down().ShowList();
             combo.events.on_click = [&] { combo.release(); };
             combo.user.click_row(1);
         }},
        {"Click by arrow key",
         [](Combo& combo) {
             combo.events.on_click = [&] { combo.release(); };
             combo.user.press_key(40);
         }},
        {"Enter in the list",
         [](Combo& combo) {
             combo.drop_down().ShowList();
             combo.list_view.rows().select(1);
             combo.events.on_click = [&] { combo.release(); };
             combo.user.press_key_in_list(13);
         }},
        {"F4 in the list",
         [](Combo& combo) {
             combo.drop_down().ShowList();
             combo.events.on_drop_down = when(DropDownState::closed, [&] { combo.release(); });
             combo.user.press_key_in_list(115);
         }},
        {"KeyDown",
         [](Combo& combo) {
             combo.events.on_key_down = [&](std::int16_t&, std::int16_t&) { combo.release(); };
             combo.user.press_key(40);
         }},
        {"Change while completing",
         [](Combo& combo) {
             combo.text_field().put_AutoComplete(true);
             combo.text_properties().put_SelStart(0);
             combo.text_properties().put_SelLength(99);
             combo.events.on_change = [&] { combo.release(); };
             combo.user.type(u"r");
         }},
        {"Click while completing",
         [](Combo& combo) {
             combo.text_field().put_AutoComplete(true);
             combo.text_properties().put_SelStart(0);
             combo.text_properties().put_SelLength(99);
             combo.events.on_click = [&] { combo.release(); };
             combo.user.type(u"r");
         }},
        {"ItemCheck",
         [](Combo& combo) {
             combo.drop_down().ShowList();
             combo.events.on_item_check = [&](std::int16_t, bool, bool& cancel) {
                 cancel = true;
                 combo.release();
             };
             combo.user.click_check_box(1);
         }},
        {"ColumnReorder",
         [](Combo& combo) {
             combo.drop_down().ShowList();
             combo.events.on_column_reorder = [&] { combo.release(); };
             combo.user.drop_header();
         }},
        {"ColumnClick",
         [](Combo& combo) {
             combo.events.on_column_click = [&](std::int16_t) { combo.release(); };
             combo.list_view.listener()->list_column_clicked(1);
             combo.list_view.listener()->list_column_clicked(1);
         }},
        {"DropDown when the form moves",
         [](Combo& combo) {
             combo.drop_down().ShowList();
             combo.events.on_drop_down = when(DropDownState::closed, [&] { combo.release(); });
             combo.form_watch.disturb();
         }},
    };
    for (const auto& [name, act] : cases) {
        Combo combo;
        act(combo);
        EXPECT_EQ(combo.hold(), nullptr) << name;
        EXPECT_EQ(combo.desktop().count("popup"), 0U) << name;
        EXPECT_EQ(combo.list_view.rows().count(), 0) << name;
        EXPECT_EQ(combo.desktop().at(combo.list_view.window()).procedure, procedure::own) << name;
        combo.create();
        combo.object().InitProperties();
        combo.expect_in_order();
    }
}

TEST(ReleasedControl, WithAnOpenListTakesItAlongSilently) {
    Combo combo;
    combo.state().mbAllowResize = true;
    combo.drop_down().ShowList();
    combo.journal().take_all();
    combo.release();
    EXPECT_EQ(combo.journal().take_events(), Lines{});
    EXPECT_EQ(combo.desktop().count("popup"), 0U);
    EXPECT_EQ(combo.desktop().at(combo.list_view.window()).parent, combo.surface.window());
    EXPECT_EQ(combo.desktop().at(combo.frame.window()).parent, combo.surface.window());
    EXPECT_EQ(combo.form_watch.watched(), 0);
}

TEST(ReleasedControl, WithAnOpenListLetsAnotherOneOpen) {
    World world;
    Combo first(world, "first.");
    Combo second(world, "second.");
    first.drop_down().ShowList();
    first.release();
    world.journal.take_all();
    second.drop_down().ShowList();
    EXPECT_EQ(world.journal.take_events(), Lines{"second.DropDown(open)"});
}

TEST(ClickHandler, ThatClearsTheListLeavesTheTextEmpty) {
    Combo combo;
    combo.events.on_click = [&] { combo.items().Clear(); };
    combo.drop_down().ShowList();
    combo.user.click_row(2);
    EXPECT_EQ(combo.object().Text(), u"");
    EXPECT_EQ(combo.items().ListCount(), 0);
    EXPECT_EQ(combo.selection().ListIndex(), -1);
    combo.expect_in_order();
}

TEST(ClickHandler, ThatRemovesItsRowEmptiesTheText) {
    Combo combo;
    combo.events.on_click = [&] {
        combo.items().RemoveItem(static_cast<std::int16_t>(combo.selection().ListIndex()));
    };
    combo.selection().put_ListIndex(1);
    EXPECT_EQ(combo.object().Text(), u"");
    EXPECT_EQ(combo.items().ListCount(), 2);
}

TEST(ClickHandler, ThatSelectsAnotherRowGetsASecondClick) {
    Combo combo;
    combo.events.on_click = [&] { combo.selection().put_ListIndex(2); };
    combo.selection().put_ListIndex(0);
    EXPECT_EQ(combo.selection().ListIndex(), 2);
    EXPECT_EQ(combo.object().Text(), u"row 2");
    EXPECT_EQ(combo.journal().take_events(), (Lines{"Click", "Click"}));
}

TEST(ClickHandler, ThatOpensTheListDoesNotKeepItOpenAgainstAClick) {
    Combo combo;
    combo.events.on_click = [&] { combo.drop_down().ShowList(); };
    combo.list_view.rows().select(0);
    combo.list_view.listener()->list_clicked();
    EXPECT_FALSE(combo.is_open()); // the focus goes to the text field after Click
    EXPECT_EQ(combo.journal().take_events(), (Lines{"Click", "DropDown(open)", "DropDown(closed)"}));
    combo.expect_in_order();
}

TEST(ClickHandler, ThatRaisesAnErrorLeavesNoFlagUp) {
    Combo combo;
    combo.events.on_click = [] { throw HostError(1000); };
    EXPECT_EQ(failure_of([&] { combo.selection().put_ListIndex(1); }).number, 1000);
    EXPECT_FALSE(combo.state().mbIgnoreChange);
    combo.events.on_click = nullptr;
    combo.journal().take_all();
    combo.object().put_Text(u"x");
    EXPECT_EQ(combo.journal().take_events(), Lines{"Change"});
}

TEST(ChangeHandler, ThatRaisesAnErrorLeavesTextWritable) {
    Combo combo;
    combo.events.on_change = [] { throw HostError(1000); };
    EXPECT_EQ(failure_of([&] { combo.object().put_Text(u"x"); }).number, 1000);
    combo.events.on_change = nullptr;
    combo.object().put_Text(u"y");
    EXPECT_EQ(combo.object().Text(), u"y");
}

TEST(ChangeHandler, MaySelectARow) {
    Combo combo;
    combo.events.on_change = [&] { combo.selection().put_ListIndex(1); };
    combo.object().put_Text(u"x");
    // The nested write through Text is swallowed, the direct one is not.
    EXPECT_EQ(combo.object().Text(), u"row 1");
    EXPECT_EQ(combo.selection().ListIndex(), 1);
    EXPECT_EQ(combo.journal().take_all(), (Lines{"Change", "Changed(ListIndex)", "Click", "Changed(Text)"}));
}

TEST(ItemCheckHandler, MayRemoveTheRowItCancels) {
    Combo combo;
    combo.events.on_item_check = [&](std::int16_t index, bool, bool& cancel) {
        combo.items().RemoveItem(index);
        cancel = true;
    };
    combo.check_boxes().put_Checked(1, true);
    EXPECT_EQ(combo.items().ListCount(), 2);
    EXPECT_FALSE(combo.check_boxes().Checked(0));
    EXPECT_FALSE(combo.check_boxes().Checked(1));
}

TEST(ItemCheckHandler, MayMoveTheRowItCancels) {
    Combo combo;
    combo.events.on_item_check = [&](std::int16_t, bool, bool& cancel) {
        combo.add(u"new", 0);
        cancel = true;
    };
    combo.check_boxes().put_Checked(1, true);
    for (const std::int16_t row : Integers{0, 1, 2, 3}) {
        EXPECT_FALSE(combo.check_boxes().Checked(row)) << row;
    }
}

TEST(ColumnReorderHandler, MayCloseTheList) {
    Combo combo;
    combo.drop_down().ShowList();
    combo.events.on_column_reorder = [&] { combo.drop_down().HideList(); };
    combo.user.drop_header();
    EXPECT_FALSE(combo.is_open());
    EXPECT_NE(combo.desktop().focus(), combo.list_view.window());
    combo.expect_in_order();
}

TEST(KeyDownHandler, MayChangeTheKey) {
    Combo combo;
    combo.events.on_key_down = [](std::int16_t& key_code, std::int16_t&) { key_code = 40; };
    EXPECT_EQ(combo.user.press_key(65), 0);
    EXPECT_EQ(combo.selection().ListIndex(), 0);
}

} // namespace vellora::test
