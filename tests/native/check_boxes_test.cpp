// Check boxes of the rows: set by program and by user, cancelled, counted and listed.
#include "support/headless/failure.h"
#include "support/headless/headless_control.h"
#include "support/headless/user.h"

#include <gtest/gtest.h>

#include <optional>

namespace vellora::test {

namespace {

using Checked = std::vector<std::optional<std::int32_t>>;

Checked checked_items(HeadlessControl& combo) {
    return std::get<Checked>(combo.check_boxes().CheckedItems());
}

struct FourRows : HeadlessControl {
    FourRows() { add_rows(4); }
    User user{*this};
};

} // namespace

TEST(CheckBoxes, CannotBeSwitchedAtRunTime) {
    HeadlessControl combo;
    EXPECT_EQ(failure_of([&] { combo.check_boxes().put_CheckBoxes(true); }),
              (Failure{382, u"Vellora1", u""}));
    EXPECT_FALSE(combo.check_boxes().ShowsCheckBoxes());
    EXPECT_FALSE(combo.list_view.check_boxes());
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(CheckBoxes, AreSwitchedInADesignerAndWhileLoading) {
    HeadlessControl designed(Mode::design);
    designed.check_boxes().put_CheckBoxes(true);
    EXPECT_TRUE(designed.check_boxes().ShowsCheckBoxes());
    EXPECT_TRUE(designed.list_view.check_boxes());
    EXPECT_EQ(designed.journal().take_all(), Lines{"Changed(CheckBoxes)"});

    HeadlessControl running;
    running.state().mbLoadingProperties = true;
    running.check_boxes().put_CheckBoxes(true);
    EXPECT_TRUE(running.list_view.check_boxes());
    EXPECT_EQ(running.journal().take_all(), Lines{});
}

TEST(Checked, SetByTheProgramRaisesItemCheck) {
    FourRows combo;
    combo.check_boxes().put_Checked(0, true);
    EXPECT_TRUE(combo.check_boxes().Checked(0));
    EXPECT_EQ(combo.journal().take_all(), Lines{"ItemCheck(0, True)"});
    combo.check_boxes().put_Checked(0, true);
    EXPECT_EQ(combo.journal().take_all(), Lines{"ItemCheck(0, True)"});
    combo.check_boxes().put_Checked(0, false);
    EXPECT_EQ(combo.journal().take_all(), Lines{"ItemCheck(0, False)"});
}

TEST(Checked, CanBeCancelled) {
    FourRows combo;
    combo.events.on_item_check = [](std::int16_t, bool, bool& cancel) { cancel = true; };
    combo.check_boxes().put_Checked(0, true);
    EXPECT_FALSE(combo.check_boxes().Checked(0));
    EXPECT_EQ(combo.journal().take_events(), Lines{"ItemCheck(0, True)"});
}

TEST(Checked, CancelledTogglesWhatIsThereByThen) {
    FourRows combo;
    combo.events.on_item_check = [&](std::int16_t, bool, bool& cancel) {
        combo.list_view.rows().set_checked(0, false);
        cancel = true;
    };
    combo.check_boxes().put_Checked(0, true);
    EXPECT_TRUE(combo.check_boxes().Checked(0)); // a second toggle, not the old value
}

TEST(Checked, ByTheUserIsRaisedOnceAndSelectsNothing) {
    FourRows combo;
    combo.user.click_check_box(2);
    EXPECT_TRUE(combo.check_boxes().Checked(2));
    EXPECT_EQ(combo.object().Text(), u"Vellora1");
    EXPECT_EQ(combo.journal().take_events(), Lines{"ItemCheck(2, True)"});
    EXPECT_FALSE(combo.state().mbIgnoreListClick);
}

TEST(Checked, ByTheSpaceBarLeavesTheNextClickAlone) {
    FourRows combo;
    ListViewListener& list = *combo.list_view.listener();
    list.list_item_checked(2);
    std::int16_t space = u' ';
    list.list_key_press(space);
    EXPECT_EQ(space, u' ');
    combo.user.click_row(1);
    EXPECT_EQ(combo.selection().ListIndex(), 1);
}

TEST(Checked, ByTheUserCanBeCancelledToo) {
    FourRows combo;
    combo.events.on_item_check = [](std::int16_t, bool, bool& cancel) { cancel = true; };
    combo.user.click_check_box(2);
    EXPECT_FALSE(combo.check_boxes().Checked(2));
    EXPECT_EQ(combo.journal().take_events(), Lines{"ItemCheck(2, True)"});
}

TEST(Checked, IsNotReportedAgainFromItsOwnHandler) {
    FourRows combo;
    combo.events.on_item_check = [&](std::int16_t row, bool, bool&) {
        combo.list_view.listener()->list_item_checked(row);
    };
    combo.user.click_check_box(2);
    EXPECT_EQ(combo.journal().take_events(), Lines{"ItemCheck(2, True)"});
}

TEST(Checked, WorksAgainAfterAHandlersError) {
    FourRows combo;
    combo.events.on_item_check = [](std::int16_t, bool, bool&) { throw HostError(1000); };
    EXPECT_EQ(failure_of([&] { combo.list_view.listener()->list_item_checked(1); }).number, 1000);
    combo.events.on_item_check = nullptr;
    combo.journal().take_all();
    combo.list_view.listener()->list_item_checked(1);
    EXPECT_EQ(combo.journal().take_events(), Lines{"ItemCheck(1, False)"});
}

TEST(Checked, OfARowThatIsNotThereFailsAsTheListViewFails) {
    FourRows combo;
    EXPECT_EQ(failure_of([&] { combo.check_boxes().Checked(4); }).number, 35600);
    EXPECT_EQ(failure_of([&] { combo.check_boxes().put_Checked(-1, true); }).number, 35600);
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(CheckedItems, ListsTheRowsThatAreChecked) {
    FourRows combo;
    combo.check_boxes().put_Checked(3, true);
    combo.check_boxes().put_Checked(1, true);
    EXPECT_EQ(combo.check_boxes().CheckedCount(), 2);
    EXPECT_EQ(checked_items(combo), (Checked{1, 3}));
}

TEST(CheckedItems, ListsAHundredThousandRowsThoughTheCountIsAnInteger) {
    constexpr std::int32_t many = 100'000;
    HeadlessControl combo;
    ListRows& rows = combo.list_view.rows();
    for (std::int32_t row = 0; row < many; ++row) {
        rows.append();
        rows.set_checked(row, true);
    }
    EXPECT_EQ(combo.check_boxes().CheckedCount(), 32767);
    const Checked items = checked_items(combo);
    ASSERT_EQ(items.size(), 100'000U);
    EXPECT_EQ(items.back(), many - 1);
}

// Like everything that has a row in an Integer.
TEST(Checked, ByTheUserBeyondAnIntegersReachOverflows) {
    HeadlessControl combo;
    while (combo.list_view.rows().count() < 32769) {
        combo.list_view.rows().append();
    }
    User user(combo);
    user.click_check_box(32767);
    EXPECT_EQ(combo.journal().take_events(), Lines{"ItemCheck(32767, True)"});
    EXPECT_EQ(failure_of([&] { user.click_check_box(32768); }).number, 6);
    EXPECT_TRUE(combo.list_view.rows().checked(32768));
    EXPECT_EQ(checked_items(combo), (Checked{32767, 32768}));
}

TEST(CheckedItems, HasOneEmptyElementWhenNoneIsChecked) {
    FourRows combo;
    EXPECT_EQ(combo.check_boxes().CheckedCount(), 0);
    EXPECT_EQ(checked_items(combo), Checked{std::nullopt});
    combo.items().Clear();
    EXPECT_EQ(combo.check_boxes().CheckedCount(), 0);
    EXPECT_EQ(checked_items(combo), Checked{std::nullopt});
}

} // namespace vellora::test
