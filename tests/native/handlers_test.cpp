// Handlers that change the rows, the text or the list they are told about.
#include "support/headless/drop_down_combo.h"
#include "support/headless/failure.h"

#include <gtest/gtest.h>

namespace vellora::test {

TEST(ClickHandler, ThatClearsTheListLeavesTheTextEmpty) {
    DropDownCombo combo;
    combo.events.on_click = [&] { combo.items().Clear(); };
    combo.drop_down().ShowList();
    combo.user.click_row(2);
    EXPECT_EQ(combo.object().Text(), u"");
    EXPECT_EQ(combo.items().ListCount(), 0);
    EXPECT_EQ(combo.selection().ListIndex(), -1);
    combo.expect_in_order();
}

TEST(ClickHandler, ThatRemovesItsRowEmptiesTheText) {
    DropDownCombo combo;
    combo.events.on_click = [&] {
        combo.items().RemoveItem(static_cast<std::int16_t>(combo.selection().ListIndex()));
    };
    combo.selection().put_ListIndex(1);
    EXPECT_EQ(combo.object().Text(), u"");
    EXPECT_EQ(combo.items().ListCount(), 2);
}

TEST(ClickHandler, ThatSelectsAnotherRowGetsASecondClick) {
    DropDownCombo combo;
    combo.events.on_click = [&] { combo.selection().put_ListIndex(2); };
    combo.selection().put_ListIndex(0);
    EXPECT_EQ(combo.selection().ListIndex(), 2);
    EXPECT_EQ(combo.object().Text(), u"row 2");
    EXPECT_EQ(combo.journal().take_events(), (Lines{"Click", "Click"}));
}

TEST(ClickHandler, ThatOpensTheListDoesNotKeepItOpenAgainstAClick) {
    DropDownCombo combo;
    combo.events.on_click = [&] { combo.drop_down().ShowList(); };
    combo.list_view.rows().select(0);
    combo.list_view.listener()->list_clicked();
    EXPECT_FALSE(combo.is_open()); // the focus goes to the text field after Click
    EXPECT_EQ(combo.journal().take_events(), (Lines{"Click", "DropDown(open)", "DropDown(closed)"}));
    combo.expect_in_order();
}

TEST(ClickHandler, ThatRaisesAnErrorLeavesNoFlagUp) {
    DropDownCombo combo;
    combo.events.on_click = [] { throw HostError(1000); };
    EXPECT_EQ(failure_of([&] { combo.selection().put_ListIndex(1); }).number, 1000);
    EXPECT_FALSE(combo.state().mbIgnoreChange);
    combo.events.on_click = nullptr;
    combo.journal().take_all();
    combo.object().put_Text(u"x");
    EXPECT_EQ(combo.journal().take_events(), Lines{"Change"});
}

TEST(ChangeHandler, ThatRaisesAnErrorLeavesTextWritable) {
    DropDownCombo combo;
    combo.events.on_change = [] { throw HostError(1000); };
    EXPECT_EQ(failure_of([&] { combo.object().put_Text(u"x"); }).number, 1000);
    combo.events.on_change = nullptr;
    combo.object().put_Text(u"y");
    EXPECT_EQ(combo.object().Text(), u"y");
}

TEST(ChangeHandler, MaySelectARow) {
    DropDownCombo combo;
    combo.events.on_change = [&] { combo.selection().put_ListIndex(1); };
    combo.object().put_Text(u"x");
    // The nested write through Text is swallowed, the direct one is not.
    EXPECT_EQ(combo.object().Text(), u"row 1");
    EXPECT_EQ(combo.selection().ListIndex(), 1);
    EXPECT_EQ(combo.journal().take_all(), (Lines{"Change", "Changed(ListIndex)", "Click", "Changed(Text)"}));
}

TEST(ItemCheckHandler, MayRemoveTheRowItCancels) {
    DropDownCombo combo;
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
    DropDownCombo combo;
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
    DropDownCombo combo;
    combo.drop_down().ShowList();
    combo.events.on_column_reorder = [&] { combo.drop_down().HideList(); };
    combo.user.drop_header();
    EXPECT_FALSE(combo.is_open());
    EXPECT_NE(combo.desktop().focus(), combo.list_view.window());
    combo.expect_in_order();
}

TEST(KeyDownHandler, MayChangeTheKey) {
    DropDownCombo combo;
    combo.events.on_key_down = [](std::int16_t& key_code, std::int16_t&) { key_code = 40; };
    EXPECT_EQ(combo.user.press_key(65), 0);
    EXPECT_EQ(combo.selection().ListIndex(), 0);
}

} // namespace vellora::test
