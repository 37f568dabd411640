// Keys, typing and completion in the text field, and what of it reaches the program.
#include "native/fruit.h"

#include <gtest/gtest.h>

namespace vellora::test {

namespace {

constexpr std::int16_t up = 38;
constexpr std::int16_t down = 40;
constexpr std::int16_t f4 = 115;

} // namespace

TEST(Keys, DownAndUpStepThroughTheRows) {
    Fruit combo;
    EXPECT_EQ(combo.user.press_key(down), 0);
    EXPECT_EQ(combo.selection().ListIndex(), 0);
    EXPECT_EQ(combo.object().Text(), u"Apple");
    EXPECT_EQ(combo.text_properties().SelStart(), 0);
    EXPECT_EQ(combo.text_properties().SelLength(), 5);
    EXPECT_EQ(combo.journal().take_all(),
              (Lines{"KeyDown(40, 0)", "Changed(ListIndex)", "Changed(Text)", "Click", "KeyUp(40, 0)"}));
    combo.user.press_key(down);
    combo.user.press_key(up);
    EXPECT_EQ(combo.selection().ListIndex(), 0);
}

TEST(Keys, StopAtBothEnds) {
    Fruit combo;
    combo.user.press_key(up);
    EXPECT_EQ(combo.selection().ListIndex(), -1);
    combo.selection().put_ListIndex(0);
    EXPECT_EQ(combo.user.press_key(up), 0);
    EXPECT_EQ(combo.selection().ListIndex(), 0);
    combo.selection().put_ListIndex(2);
    EXPECT_EQ(combo.user.press_key(down), 0);
    EXPECT_EQ(combo.selection().ListIndex(), 2);
}

TEST(Keys, StepFromWhereTheUserSelectedInTheList) {
    Fruit combo;
    combo.list_view.rows().select(1);
    combo.user.press_key(down);
    EXPECT_EQ(combo.selection().ListIndex(), 2);
}

TEST(Keys, AreSwallowedOnAnEmptyListToo) {
    HeadlessControl combo;
    EXPECT_EQ(User(combo).press_key(down), 0);
    EXPECT_EQ(combo.journal().take_events(), (Lines{"KeyDown(40, 0)", "KeyUp(40, 0)"}));
}

TEST(Keys, WithModifiersAreLeftAlone) {
    for (const std::int16_t shift : Integers{1, 2, 4}) {
        for (const std::int16_t key : Integers{down, up, f4, 65}) {
            Fruit combo;
            EXPECT_EQ(combo.user.press_key(key, shift), key);
            EXPECT_EQ(combo.selection().ListIndex(), -1);
            EXPECT_FALSE(combo.state().mbKeyTyped);
            EXPECT_EQ(combo.journal().take_events(),
                      Lines{"KeyUp(" + std::to_string(key) + ", " + std::to_string(shift) + ")"});
        }
    }
}

TEST(Keys, F4OpensTheListUnnoticed) {
    Fruit combo;
    EXPECT_EQ(combo.user.press_key(f4), 0);
    EXPECT_NE(combo.state().mlStatic_hWnd, 0);
    EXPECT_EQ(combo.journal().take_events(), Lines{"DropDown(open)"});
}

TEST(Keys, MayBeChangedByTheProgram) {
    Fruit combo;
    combo.events.on_key_down = [](std::int16_t& key_code, std::int16_t&) { key_code = 0; };
    EXPECT_EQ(combo.user.press_key(down), 0);
    EXPECT_EQ(combo.selection().ListIndex(), -1);
}

TEST(Keys, ThatAreNoStepsCountAsTypedUntilTheyAreUp) {
    Fruit combo;
    std::int16_t key = 65;
    std::int16_t shift = 0;
    combo.text_box(0).listener()->text_key_down(key, shift);
    EXPECT_TRUE(combo.state().mbKeyTyped);
    combo.text_box(0).listener()->text_key_up(key, shift);
    EXPECT_FALSE(combo.state().mbKeyTyped);
    key = down;
    combo.text_box(0).listener()->text_key_down(key, shift);
    EXPECT_FALSE(combo.state().mbKeyTyped);
}

TEST(Keys, UpHandBackWhatTheProgramMakesOfThem) {
    HeadlessControl combo;
    combo.events.on_key_up = [](std::int16_t& key_code, std::int16_t& shift) {
        key_code = 1;
        shift = 2;
    };
    std::int16_t key = 65;
    std::int16_t shift = 0;
    combo.text_box(0).listener()->text_key_up(key, shift);
    EXPECT_EQ(key, 1);
    EXPECT_EQ(shift, 2);
}

TEST(Keys, PressedGoToTheProgramByReference) {
    HeadlessControl combo;
    combo.events.on_key_press = [](std::int16_t& key_ascii) { key_ascii = 0; };
    User(combo).click_text();
    User(combo).type(u"x");
    EXPECT_EQ(combo.object().Text(), u"Vellora1");
    EXPECT_EQ(combo.journal().take_events(), (Lines{"KeyDown(88, 0)", "KeyPress(120)", "KeyUp(88, 0)"}));
}

TEST(Completion, TakesTheFirstRowThatBeginsWithTheText) {
    Fruit combo;
    combo.user.type(u"ap");
    EXPECT_EQ(combo.object().Text(), u"Apple");
    EXPECT_EQ(combo.text_properties().SelStart(), 2);
    EXPECT_EQ(combo.text_properties().SelText(), u"ple");
    EXPECT_EQ(combo.selection().ListIndex(), 0);
}

TEST(Completion, GoesOnToALaterRowAsTheTextGrows) {
    Fruit combo;
    combo.user.type(u"apr");
    EXPECT_EQ(combo.object().Text(), u"apricot");
    EXPECT_EQ(combo.text_properties().SelStart(), 3);
    EXPECT_EQ(combo.text_properties().SelText(), u"icot");
    EXPECT_EQ(combo.selection().ListIndex(), 1);
}

TEST(Completion, LeavesATextWithoutARowAlone) {
    Fruit combo;
    combo.user.type(u"x");
    EXPECT_EQ(combo.object().Text(), u"x");
    EXPECT_EQ(combo.selection().ListIndex(), -1);
    EXPECT_EQ(combo.journal().take_events(),
              (Lines{"KeyDown(88, 0)", "KeyPress(120)", "Change", "KeyUp(88, 0)"}));
}

TEST(Completion, RaisesChangeForTheCompletedTextAndThenForItsOwn) {
    Fruit combo;
    combo.user.type(u"b");
    EXPECT_EQ(combo.object().Text(), u"Banana");
    EXPECT_EQ(combo.journal().take_events(),
              (Lines{"KeyDown(66, 0)", "KeyPress(98)", "Click", "Change", "Change", "KeyUp(66, 0)"}));
}

TEST(Completion, LooksAtTheTextColumn) {
    Fruit combo;
    combo.columns().put_Columns(2);
    combo.add(TestVariant::array({u"xx", u"yellow"}));
    combo.selection().put_TextColumn(2);
    combo.user.click_text();
    combo.text_properties().put_SelStart(0);
    combo.text_properties().put_SelLength(99);
    combo.user.type(u"y");
    EXPECT_EQ(combo.object().Text(), u"yellow");
}

TEST(Completion, IsNotForProgramsThatWriteTheText) {
    Fruit combo;
    combo.object().put_Text(u"ap");
    EXPECT_EQ(combo.object().Text(), u"ap");
    combo.text_properties().put_SelText(u"p");
    EXPECT_EQ(combo.selection().ListIndex(), -1);
}

TEST(Completion, DoesNothingUnlessAskedFor) {
    Fruit combo;
    combo.text_field().put_AutoComplete(false);
    combo.user.type(u"ap");
    EXPECT_EQ(combo.object().Text(), u"ap");
}

TEST(Completion, LeavesADeletionAloneOnce) {
    Fruit combo;
    combo.user.type(u"ap");
    combo.journal().take_all();
    combo.user.press_backspace();
    EXPECT_EQ(combo.object().Text(), u"Ap"); // the row's own letters
    EXPECT_EQ(combo.journal().take_events(), (Lines{"KeyDown(8, 0)", "KeyUp(8, 0)"}));
    combo.user.type(u"r");
    EXPECT_EQ(combo.object().Text(), u"apricot");
}

TEST(Completion, RaisesNoChangeWhenTheTextIsEmptied) {
    Fruit combo;
    combo.user.press_delete();
    EXPECT_EQ(combo.object().Text(), u"");
    EXPECT_EQ(combo.journal().take_events(), (Lines{"KeyDown(46, 0)", "KeyUp(46, 0)"}));
    combo.user.type(u"b"); // nothing was left over from the deletion
    EXPECT_EQ(combo.object().Text(), u"Banana");
}

TEST(AutoComplete, IsStoredAndReported) {
    HeadlessControl combo;
    combo.text_field().put_AutoComplete(true);
    EXPECT_TRUE(combo.text_field().AutoComplete());
    EXPECT_EQ(combo.journal().take_all(), Lines{"Changed(AutoComplete)"});
}

TEST(GettingTheFocus, SelectsTheWholeText) {
    HeadlessControl combo;
    combo.desktop().set_focus(combo.world().other);
    combo.object().put_Text(u"abc");
    combo.journal().take_all();
    User(combo).click_text();
    EXPECT_EQ(combo.text_properties().SelText(), u"abc");
    EXPECT_EQ(combo.journal().take_all(), Lines{"focus text 0"});
}

TEST(GettingTheFocus, LetsTheMouseGoInToggleStyle) {
    HeadlessControl combo;
    combo.state().mlButtonStyle = vlToggle;
    combo.desktop().set_focus(combo.world().other);
    combo.journal().take_all();
    User(combo).click_text();
    EXPECT_EQ(combo.journal().take_all(), (Lines{"focus text 0", "release capture"}));
}

TEST(MouseInTheTextField, GoesToTheProgramByReference) {
    HeadlessControl combo;
    const auto change_all = [](std::int16_t& button, std::int16_t& shift, float& x, float& y) {
        button = 4;
        shift = 7;
        x = -1;
        y = -2;
    };
    combo.events.on_mouse_down = change_all;
    combo.events.on_mouse_move = change_all;
    combo.events.on_mouse_up = change_all;
    using Raise = void (TextBoxListener::*)(std::int16_t&, std::int16_t&, float&, float&);
    for (const Raise raise : {&TextBoxListener::text_mouse_down, &TextBoxListener::text_mouse_move,
                              &TextBoxListener::text_mouse_up}) {
        std::int16_t button = 1;
        std::int16_t shift = 2;
        float x = 30;
        float y = 45.5F;
        (combo.text_box(0).listener()->*raise)(button, shift, x, y);
        EXPECT_EQ(button, 4);
        EXPECT_EQ(shift, 7);
        EXPECT_EQ(x, -1.0F);
        EXPECT_EQ(y, -2.0F);
    }
    EXPECT_EQ(combo.journal().take_events(),
              (Lines{"MouseDown(1, 2, 30, 45.5)", "MouseMove(1, 2, 30, 45.5)", "MouseUp(1, 2, 30, 45.5)"}));
}

TEST(MouseInTheTextField, DoubleClickedIsReported) {
    HeadlessControl combo;
    combo.text_box(0).listener()->text_double_click();
    EXPECT_EQ(combo.journal().take_events(), Lines{"DblClick"});
}

} // namespace vellora::test
