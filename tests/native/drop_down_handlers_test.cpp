// Handlers that close what just opened, open it again, or let go of the control.
#include "support/headless/drop_down_combo.h"
#include "support/headless/failure.h"

#include <gtest/gtest.h>

namespace vellora::test {

namespace {

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
    DropDownCombo combo;
    combo.events.on_drop_down = when(DropDownState::open, [&] { combo.drop_down().HideList(); });
    combo.drop_down().ShowList();
    EXPECT_FALSE(combo.is_open());
    EXPECT_EQ(combo.journal().take_events(), opened_and_closed);
    combo.expect_in_order();
}

TEST(DropDownHandler, ThatClosesTheListAtOnceWorksForAMouseClickToo) {
    DropDownCombo combo;
    combo.events.on_drop_down = when(DropDownState::open, [&] { combo.drop_down().HideList(); });
    combo.user.click_button();
    EXPECT_FALSE(combo.is_open());
    combo.expect_in_order();
}

TEST(DropDownHandler, ThatMovesTheFocusClosesTheList) {
    DropDownCombo combo;
    combo.events.on_drop_down = when(DropDownState::open, [&] { combo.user.click_elsewhere(); });
    combo.drop_down().ShowList();
    EXPECT_FALSE(combo.is_open());
    EXPECT_EQ(combo.journal().take_events(), opened_and_closed);
    combo.expect_in_order();
}

TEST(DropDownHandler, ThatOpensAgainOpensNoSecondList) {
    DropDownCombo combo;
    combo.events.on_drop_down = when(DropDownState::open, [&] { combo.drop_down().ShowList(); });
    combo.drop_down().ShowList();
    EXPECT_TRUE(combo.is_open());
    EXPECT_EQ(combo.desktop().count("popup"), 1U);
    EXPECT_EQ(combo.journal().take_events(), opened);
    combo.expect_in_order();
}

TEST(DropDownHandler, ThatClosesAndOpensAgainLeavesNothingStuck) {
    DropDownCombo combo;
    combo.events.on_drop_down = when(DropDownState::open, [&] {
        combo.drop_down().HideList();
        combo.drop_down().ShowList();
    });
    combo.drop_down().ShowList();
    combo.expect_in_order();
}

TEST(DropDownHandler, CannotReopenWhileTheListCloses) {
    DropDownCombo combo;
    combo.events.on_drop_down = when(DropDownState::closed, [&] { combo.drop_down().ShowList(); });
    combo.drop_down().ShowList();
    combo.drop_down().HideList();
    EXPECT_FALSE(combo.is_open());
    EXPECT_EQ(combo.journal().take_events(), opened_and_closed);
    combo.expect_in_order();
}

TEST(DropDownHandler, ThatClosesAgainWhileClosingGetsOneEvent) {
    DropDownCombo combo;
    combo.events.on_drop_down = when(DropDownState::closed, [&] { combo.drop_down().HideList(); });
    combo.drop_down().ShowList();
    combo.drop_down().HideList();
    EXPECT_EQ(combo.journal().take_events(), opened_and_closed);
    combo.expect_in_order();
}

TEST(DropDownHandler, MayOpenAnotherControlsListInstead) {
    World world;
    DropDownCombo first(world, "first.");
    DropDownCombo second(world, "second.");
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
    DropDownCombo combo;
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
    DropDownCombo combo;
    for (const DropDownState state : {DropDownState::open, DropDownState::closed}) {
        combo.events.on_drop_down = when(state, [] { throw HostError(1000); });
        failure_of([&] { combo.drop_down().ShowList(); });
        failure_of([&] { combo.drop_down().HideList(); });
        combo.expect_in_order();
    }
}

TEST(DropDownHandler, MayLetGoOfTheControlOnOpening) {
    DropDownCombo combo;
    combo.events.on_drop_down = when(DropDownState::open, [&] { combo.release(); });
    {
        const auto caller = combo.hold();
        caller->drop_down().ShowList();
        EXPECT_TRUE(caller->state().mlStatic_hWnd != 0);
    }
    EXPECT_EQ(combo.desktop().count("popup"), 0U);
    EXPECT_EQ(combo.journal().take_events(), opened);
    combo.create();
    combo.object().InitProperties();
    combo.expect_in_order();
}

TEST(DropDownHandler, MayLetGoOfTheControlOnClosing) {
    DropDownCombo combo;
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
    using Act = std::function<void(DropDownCombo&)>;
    const std::vector<std::pair<const char*, Act>> cases{
        {"DropDown by mouse",
         [](DropDownCombo& combo) {
             combo.events.on_drop_down = when(DropDownState::open, [&] { combo.release(); });
             combo.user.click_button();
         }},
        {"DropDown by F4",
         [](DropDownCombo& combo) {
             combo.events.on_drop_down = when(DropDownState::open, [&] { combo.release(); });
             combo.user.press_key(115);
         }},
        {"Click in the list",
         [](DropDownCombo& combo) {
             combo.drop_down().ShowList();
             combo.events.on_click = [&] { combo.release(); };
             combo.user.click_row(1);
         }},
        {"Click by arrow key",
         [](DropDownCombo& combo) {
             combo.events.on_click = [&] { combo.release(); };
             combo.user.press_key(40);
         }},
        {"Enter in the list",
         [](DropDownCombo& combo) {
             combo.drop_down().ShowList();
             combo.list_view.rows().select(1);
             combo.events.on_click = [&] { combo.release(); };
             combo.user.press_key_in_list(13);
         }},
        {"F4 in the list",
         [](DropDownCombo& combo) {
             combo.drop_down().ShowList();
             combo.events.on_drop_down = when(DropDownState::closed, [&] { combo.release(); });
             combo.user.press_key_in_list(115);
         }},
        {"KeyDown",
         [](DropDownCombo& combo) {
             combo.events.on_key_down = [&](std::int16_t&, std::int16_t&) { combo.release(); };
             combo.user.press_key(40);
         }},
        {"Change while completing",
         [](DropDownCombo& combo) {
             combo.text_field().put_AutoComplete(true);
             combo.text_properties().put_SelStart(0);
             combo.text_properties().put_SelLength(99);
             combo.events.on_change = [&] { combo.release(); };
             combo.user.type(u"r");
         }},
        {"Click while completing",
         [](DropDownCombo& combo) {
             combo.text_field().put_AutoComplete(true);
             combo.text_properties().put_SelStart(0);
             combo.text_properties().put_SelLength(99);
             combo.events.on_click = [&] { combo.release(); };
             combo.user.type(u"r");
         }},
        {"ItemCheck",
         [](DropDownCombo& combo) {
             combo.drop_down().ShowList();
             combo.events.on_item_check = [&](std::int16_t, bool, bool& cancel) {
                 cancel = true;
                 combo.release();
             };
             combo.user.click_check_box(1);
         }},
        {"ColumnReorder",
         [](DropDownCombo& combo) {
             combo.drop_down().ShowList();
             combo.events.on_column_reorder = [&] { combo.release(); };
             combo.user.drop_header();
         }},
        {"ColumnClick",
         [](DropDownCombo& combo) {
             combo.events.on_column_click = [&](std::int16_t) { combo.release(); };
             combo.list_view.listener()->list_column_clicked(1);
             combo.list_view.listener()->list_column_clicked(1);
         }},
        {"DropDown when the form moves",
         [](DropDownCombo& combo) {
             combo.drop_down().ShowList();
             combo.events.on_drop_down = when(DropDownState::closed, [&] { combo.release(); });
             combo.form_watch.disturb();
         }},
    };
    for (const auto& [name, act] : cases) {
        DropDownCombo combo;
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
    DropDownCombo combo;
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
    DropDownCombo first(world, "first.");
    DropDownCombo second(world, "second.");
    first.drop_down().ShowList();
    first.release();
    world.journal.take_all();
    second.drop_down().ShowList();
    EXPECT_EQ(world.journal.take_events(), Lines{"second.DropDown(open)"});
}

} // namespace vellora::test
