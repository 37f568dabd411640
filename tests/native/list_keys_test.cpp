// What the keyboard does in the open list with its headers and its grip.
#include "control/keys.h"
#include "runtime/host_error.h"
#include "support/headless/drop_down_combo.h"

#include <gtest/gtest.h>

namespace vellora::test {

namespace {

using Order = std::vector<std::int16_t>;
constexpr std::int16_t ctrl = key::control_mask;
constexpr std::int16_t shift = key::shift_mask;
constexpr float step = 8 * 15.0F;

/// Open, with three columns of 600 twips and the keyboard in the headers when a test asks for it.
struct ThreeColumns : DropDownCombo {
    ThreeColumns() {
        columns().put_Columns(3);
        for (std::int16_t column : Integers{1, 2, 3}) {
            columns().put_ColumnWidth(column, 600);
        }
        column_order().put_AllowColumnReorder(true);
        add_rows(3); // without rows no headers show
    }
    void open_list() {
        drop_down().ShowList();
        journal().take_all();
    }
    void in_headers() {
        open_list();
        press(key::f6);
    }
    void press(std::int16_t code, std::int16_t held = 0) { user.press_key_in_list(code, held); }
    std::int32_t marked() { return list_view.marked_header(); }
    Order order() { return std::get<Order>(column_order().Order()); }
    std::vector<float> widths() {
        return {list_view.header_width(1), list_view.header_width(2), list_view.header_width(3)};
    }
};

} // namespace

TEST(ListKeys, F6GoesToTheHeadersAndBack) {
    ThreeColumns combo;
    combo.open_list();
    EXPECT_EQ(combo.marked(), 0);
    combo.press(key::f6);
    EXPECT_EQ(combo.marked(), 1);
    combo.press(key::f6);
    EXPECT_EQ(combo.marked(), 0);
    EXPECT_TRUE(combo.is_open());
    EXPECT_EQ(combo.journal().take_events(), Lines{});
}

TEST(ListKeys, EscLeavesTheHeadersFirstAndTheListThen) {
    ThreeColumns combo;
    combo.in_headers();
    combo.press(key::escape);
    EXPECT_EQ(combo.marked(), 0);
    EXPECT_TRUE(combo.is_open());
    combo.press(key::escape);
    EXPECT_FALSE(combo.is_open());
}

TEST(ListKeys, ANewOpeningBeginsInTheRows) {
    ThreeColumns combo;
    combo.in_headers();
    combo.press(key::f4);
    EXPECT_FALSE(combo.is_open());
    EXPECT_EQ(combo.marked(), 0);
}

TEST(ListKeys, KeysThatGoToARowAreTheRows) {
    ThreeColumns combo;
    for (std::int16_t code : {key::up, key::down, key::home, key::end, key::page_up, key::page_down}) {
        combo.in_headers();
        std::int16_t left = code;
        combo.list_view.listener()->list_key_down(left, 0);
        EXPECT_EQ(left, code);
        EXPECT_EQ(combo.marked(), 0);
        combo.drop_down().HideList();
    }
}

TEST(ListKeys, NoHeaderIsReachedWhereNoneShows) {
    ThreeColumns combo;
    combo.columns().put_HideColumnHeaders(true);
    combo.in_headers();
    EXPECT_EQ(combo.marked(), 0);
    combo.drop_down().HideList();

    combo.columns().put_HideColumnHeaders(false);
    for (std::int16_t column : Integers{1, 2, 3}) {
        combo.columns().put_ColumnHidden(column, true);
    }
    combo.in_headers();
    EXPECT_EQ(combo.marked(), 0);
}

TEST(ListKeys, LeftAndRightGoFromHeaderToHeaderAsTheyStand) {
    ThreeColumns combo;
    combo.column_order().put_Order(TestVariant::array({3.0, 1.0, 2.0}));
    combo.in_headers();
    EXPECT_EQ(combo.marked(), 3);
    combo.press(key::left);
    EXPECT_EQ(combo.marked(), 3);
    combo.press(key::right);
    EXPECT_EQ(combo.marked(), 1);
    combo.press(key::right);
    combo.press(key::right);
    EXPECT_EQ(combo.marked(), 2);
    combo.press(key::left);
    EXPECT_EQ(combo.marked(), 1);
}

TEST(ListKeys, HiddenColumnsAreSkipped) {
    ThreeColumns combo;
    combo.columns().put_ColumnHidden(2, true);
    combo.in_headers();
    combo.press(key::right);
    EXPECT_EQ(combo.marked(), 3);
    combo.press(key::left);
    EXPECT_EQ(combo.marked(), 1);
    combo.columns().put_ColumnHidden(1, true);
    combo.press(key::right);
    combo.press(key::left);
    EXPECT_EQ(combo.marked(), 3);
}

TEST(ListKeys, SpaceAndEnterClickTheHeader) {
    ThreeColumns combo;
    combo.in_headers();
    combo.press(key::right);
    combo.press(key::space);
    combo.press(key::enter);
    EXPECT_EQ(combo.journal().take_events(), (Lines{"ColumnClick(2)", "ColumnClick(2)"}));
    EXPECT_TRUE(combo.is_open());
    EXPECT_EQ(combo.marked(), 2);
}

TEST(ListKeys, TheCharacterOfAKeyTakenFindsNoRow) {
    ThreeColumns combo;
    combo.in_headers();
    for (std::int16_t code : {key::space, key::enter, key::escape}) {
        std::int16_t down = code;
        std::int16_t character = code;
        combo.list_view.listener()->list_key_down(down, 0);
        combo.list_view.listener()->list_key_press(character);
        EXPECT_EQ(down, 0);
        EXPECT_EQ(character, 0);
    }
    combo.press(key::f6);
    std::int16_t key_code = 'B';
    std::int16_t letter = u'b';
    combo.list_view.listener()->list_key_down(key_code, 0);
    combo.list_view.listener()->list_key_press(letter);
    EXPECT_EQ(letter, u'b');
    EXPECT_EQ(combo.marked(), 0);
}

TEST(ListKeys, TheCharacterMayArriveWhileAHandlerTakesItsTime) {
    ThreeColumns combo;
    combo.in_headers();
    std::int16_t down = key::enter;
    std::int16_t character = key::enter;
    combo.events.on_column_click = [&](std::int16_t) { combo.list_view.listener()->list_key_press(character); };
    combo.list_view.listener()->list_key_down(down, 0);
    combo.events.on_column_click = nullptr;
    EXPECT_EQ(down, 0);
    EXPECT_EQ(character, 0);
    EXPECT_TRUE(combo.is_open());
    EXPECT_EQ(combo.journal().take_events(), Lines{"ColumnClick(1)"});
}

TEST(ListKeys, ShiftAndArrowsSizeTheColumn) {
    ThreeColumns combo;
    combo.in_headers();
    combo.press(key::right, shift);
    EXPECT_EQ(combo.widths(), (std::vector<float>{600 + step, 600, 600}));
    combo.press(key::left, shift);
    combo.press(key::left, shift);
    EXPECT_EQ(combo.widths(), (std::vector<float>{600 - step, 600, 600}));
    for (int i = 0; i < 10; ++i) {
        combo.press(key::left, shift);
    }
    EXPECT_EQ(combo.widths().front(), 0.0F);
    combo.press(key::right, shift);
    EXPECT_EQ(combo.widths().front(), step);
}

TEST(ListKeys, LockedAndHiddenColumnsKeepTheirWidths) {
    ThreeColumns combo;
    combo.columns().put_ColumnLocked(1, true);
    combo.in_headers();
    combo.press(key::right, shift);
    EXPECT_EQ(combo.widths(), (std::vector<float>{600, 600, 600}));
    combo.press(key::right);
    combo.columns().put_ColumnHidden(2, true);
    const auto before = combo.widths();
    combo.press(key::right, shift);
    EXPECT_EQ(combo.widths(), before);
}

TEST(ListKeys, CtrlAndArrowsMoveTheColumn) {
    ThreeColumns combo;
    combo.in_headers();
    combo.press(key::right, ctrl);
    EXPECT_EQ(combo.order(), (Order{2, 1, 3}));
    combo.press(key::right, ctrl);
    EXPECT_EQ(combo.order(), (Order{2, 3, 1}));
    EXPECT_EQ(combo.journal().take_events(), (Lines{"ColumnReorder", "ColumnReorder"}));
    combo.press(key::right, ctrl);
    EXPECT_EQ(combo.journal().take_events(), Lines{});
    combo.press(key::left, ctrl);
    EXPECT_EQ(combo.order(), (Order{2, 1, 3}));
    EXPECT_EQ(combo.marked(), 1);
}

TEST(ListKeys, AColumnIsMovedPastHiddenOnes) {
    ThreeColumns combo;
    combo.columns().put_ColumnHidden(2, true);
    combo.in_headers();
    combo.press(key::right, ctrl);
    EXPECT_EQ(combo.order(), (Order{2, 3, 1}));
    combo.press(key::left, ctrl);
    EXPECT_EQ(combo.order(), (Order{2, 1, 3}));
}

TEST(ListKeys, ColumnsStayWhereTheyMayNotBeMoved) {
    ThreeColumns combo;
    combo.column_order().put_AllowColumnReorder(false);
    combo.in_headers();
    combo.press(key::right, ctrl);
    EXPECT_EQ(combo.order(), (Order{1, 2, 3}));
    EXPECT_EQ(combo.journal().take_events(), Lines{});
}

TEST(ListKeys, TheProgramHearsOfAMoveBeforeItHappens) {
    ThreeColumns combo;
    Order seen;
    combo.events.on_column_reorder = [&] { seen = combo.order(); };
    combo.in_headers();
    combo.press(key::right, ctrl);
    EXPECT_EQ(seen, (Order{1, 2, 3}));
    EXPECT_EQ(combo.order(), (Order{2, 1, 3}));
}

TEST(ListKeys, AMoveTakesUpTheOrderThatTheHandlerLeaves) {
    ThreeColumns combo;
    combo.events.on_column_reorder = [&] { combo.column_order().put_Order(TestVariant::array({3.0, 2.0, 1.0})); };
    combo.in_headers();
    combo.press(key::right, ctrl); // column 1 stands at the end by then
    EXPECT_EQ(combo.order(), (Order{3, 2, 1}));
}

TEST(ListKeys, AHandlerMayMakeOtherColumns) {
    for (std::int16_t count : Integers{1, 2, 5}) {
        ThreeColumns combo;
        combo.events.on_column_reorder = [&] { combo.columns().put_Columns(count); };
        combo.events.on_column_click = [&](std::int16_t) { combo.columns().put_Columns(1); };
        combo.in_headers();
        combo.press(key::right);
        combo.press(key::right, ctrl);
        for (std::int16_t code : {key::space, key::left, key::right}) {
            combo.press(code);
            combo.press(code, shift);
            combo.press(code, ctrl);
        }
        combo.press(key::add, ctrl);
        combo.events.on_column_reorder = nullptr;
        combo.events.on_column_click = nullptr;
        combo.expect_in_order();
    }
}

TEST(ListKeys, AHandlerMayCloseTheList) {
    ThreeColumns combo;
    combo.events.on_column_reorder = [&] { combo.drop_down().HideList(); };
    combo.in_headers();
    combo.press(key::right, ctrl);
    EXPECT_FALSE(combo.is_open());
    EXPECT_EQ(combo.order(), (Order{1, 2, 3}));
    combo.events.on_column_reorder = nullptr;

    combo.events.on_column_click = [&](std::int16_t) { combo.drop_down().HideList(); };
    combo.in_headers();
    combo.press(key::enter);
    EXPECT_FALSE(combo.is_open());
    combo.events.on_column_click = nullptr;
    combo.expect_in_order();
}

TEST(ListKeys, AHandlerMayEndTheControl) {
    ThreeColumns clicked;
    clicked.events.on_column_click = [&](std::int16_t) { clicked.release(); };
    clicked.in_headers();
    clicked.press(key::space);
    EXPECT_EQ(clicked.list_view.listener(), nullptr);

    ThreeColumns moved;
    moved.events.on_column_reorder = [&] { moved.release(); };
    moved.in_headers();
    moved.press(key::right, ctrl);
    EXPECT_EQ(moved.list_view.listener(), nullptr);
}

TEST(ListKeys, CtrlPlusFitsTheColumnsThatMayBeSized) {
    ThreeColumns combo;
    combo.columns().put_ColumnLocked(1, true);
    combo.columns().put_ColumnHidden(2, true);
    combo.open_list();
    const auto before = combo.widths();
    combo.press(key::add, ctrl);
    EXPECT_EQ(combo.widths(), (std::vector<float>{before[0], before[1], 0}));
    EXPECT_EQ(combo.journal().take_events(), Lines{});
}

TEST(ListKeys, CtrlShiftAndArrowsPullTheGrip) {
    DropDownCombo combo;
    combo.resize_grip().put_AllowResize(true);
    const PixelRect before = combo.open();
    combo.user.press_key_in_list(key::down, ctrl | shift);
    combo.user.press_key_in_list(key::right, ctrl | shift);
    EXPECT_EQ(combo.popup().bottom, before.bottom + 17); // a row
    EXPECT_EQ(combo.popup().right, before.right + 8);
    combo.user.press_key_in_list(key::up, ctrl | shift);
    combo.user.press_key_in_list(key::left, ctrl | shift);
    EXPECT_EQ(combo.popup().bottom, before.bottom);
    EXPECT_EQ(combo.popup().right, before.right);
}

TEST(ListKeys, TheListStaysLargerThanThreeGrips) {
    DropDownCombo combo;
    combo.resize_grip().put_AllowResize(true);
    combo.open();
    for (int i = 0; i < 40; ++i) {
        combo.user.press_key_in_list(key::up, ctrl | shift);
        combo.user.press_key_in_list(key::left, ctrl | shift);
    }
    const PixelRect smallest = combo.popup();
    EXPECT_GT(smallest.bottom - smallest.top, 48);
    EXPECT_LE(smallest.bottom - smallest.top, 48 + 17);
    EXPECT_GT(smallest.right - smallest.left, 48);
    EXPECT_LE(smallest.right - smallest.left, 48 + 8);
}

TEST(ListKeys, WithoutAGripTheyAreTheRows) {
    DropDownCombo combo;
    const PixelRect before = combo.open();
    std::int16_t down = key::down;
    combo.list_view.listener()->list_key_down(down, ctrl | shift);
    EXPECT_EQ(down, key::down);
    EXPECT_EQ(combo.popup().bottom, before.bottom);
}

TEST(ListKeys, OutsideTheHeadersTheOthersAreTheRows) {
    ThreeColumns combo;
    combo.open_list();
    for (std::int16_t code : {key::left, key::right, key::space}) {
        for (std::int16_t held : Integers{0, shift, ctrl}) {
            std::int16_t left = code;
            combo.list_view.listener()->list_key_down(left, held);
            EXPECT_EQ(left, code) << code << "+" << held;
        }
    }
    EXPECT_EQ(combo.widths(), (std::vector<float>{600, 600, 600}));
    EXPECT_EQ(combo.journal().take_events(), Lines{});
}

} // namespace vellora::test
