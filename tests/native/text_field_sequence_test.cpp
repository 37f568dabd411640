// Whole sequences of events around typing: what a program's handlers make of keys, limits, locks and
// refusals.
#include "native/fruit.h"

#include <gtest/gtest.h>

namespace vellora::test {

namespace {

constexpr std::int16_t letter_a = 65;
constexpr std::int16_t down = 40;

} // namespace

TEST(TypingSequence, AKeyMadeAnArrowSteps) {
    Fruit combo;
    combo.events.on_key_down = [](std::int16_t& key_code, std::int16_t&) { key_code = down; };
    EXPECT_EQ(combo.user.press_key(letter_a), 0);
    EXPECT_EQ(combo.journal().take_events(), (Lines{"KeyDown(65, 0)", "Click", "KeyUp(65, 0)"}));
    EXPECT_EQ(combo.object().Text(), u"Apple");
}

TEST(TypingSequence, AnArrowMadeAnotherKeyIsThatKey) {
    Fruit combo;
    combo.events.on_key_down = [](std::int16_t& key_code, std::int16_t&) { key_code = letter_a; };
    EXPECT_EQ(combo.user.press_key(down), letter_a);
    EXPECT_EQ(combo.journal().take_events(), (Lines{"KeyDown(40, 0)", "KeyUp(40, 0)"}));
    EXPECT_EQ(combo.selection().ListIndex(), -1);
}

TEST(TypingSequence, ACharacterMadeAnotherIsCompletedAsThat) {
    Fruit combo;
    combo.events.on_key_press = [](std::int16_t& key_ascii) { key_ascii = u'b'; };
    combo.user.type(u"a");
    EXPECT_EQ(combo.journal().take_events(),
              (Lines{"KeyDown(65, 0)", "KeyPress(97)", "Click", "Change", "Change", "KeyUp(65, 0)"}));
    EXPECT_EQ(combo.object().Text(), u"Banana");
}

TEST(TypingSequence, EveryHandlerOfACompletionSeesTheCompletedText) {
    Fruit combo;
    std::vector<std::u16string> seen;
    const auto look = [&] { seen.push_back(combo.object().Text()); };
    combo.events.on_click = look;
    combo.events.on_change = look;
    combo.user.type(u"b");
    EXPECT_EQ(seen, (std::vector<std::u16string>{u"Banana", u"Banana", u"Banana"}));
}

TEST(TypingSequence, AWholeWordAndItsDeletion) {
    Fruit combo;
    combo.user.type(u"apr");
    EXPECT_EQ(combo.journal().take_events(),
              (Lines{"KeyDown(65, 0)", "KeyPress(97)", "Click", "Change", "Change", "KeyUp(65, 0)",
                     "KeyDown(80, 0)", "KeyPress(112)", "Change", "Change", "KeyUp(80, 0)", "KeyDown(82, 0)",
                     "KeyPress(114)", "Click", "Change", "Change", "KeyUp(82, 0)"}));
    combo.user.press_backspace();
    combo.user.press_backspace();
    EXPECT_EQ(combo.object().Text(), u"ap");
    combo.user.press_backspace();
    combo.user.press_backspace();
    EXPECT_EQ(combo.object().Text(), u"");
    combo.user.press_backspace(); // nothing left
    Lines presses;
    for (int press = 0; press < 5; ++press) {
        presses.insert(presses.end(), {"KeyDown(8, 0)", "KeyUp(8, 0)"});
    }
    EXPECT_EQ(combo.journal().take_events(), presses);
}

TEST(TypingSequence, DeletionsAreChangesWithoutCompletion) {
    Fruit combo;
    combo.text_field().put_AutoComplete(false);
    combo.user.type(u"x");
    combo.user.press_backspace();
    EXPECT_EQ(combo.journal().take_events(),
              (Lines{"KeyDown(88, 0)", "KeyPress(120)", "Change", "KeyUp(88, 0)", "KeyDown(8, 0)", "Change",
                     "KeyUp(8, 0)"}));
}

TEST(TypingSequence, CompletionIsCutAtTheMaximalLength) {
    Fruit combo;
    combo.text_properties().put_MaxLength(3);
    combo.user.type(u"ap");
    EXPECT_EQ(combo.object().Text(), u"App");
    EXPECT_EQ(combo.text_properties().SelText(), u"p");
    EXPECT_EQ(combo.selection().ListIndex(), 0);
    combo.user.type(u"r");
    EXPECT_EQ(combo.object().Text(), u"apr");
    EXPECT_EQ(combo.text_properties().SelText(), u"");
    EXPECT_EQ(combo.selection().ListIndex(), 1);
}

TEST(TypingSequence, ALockedFieldTakesNoLetterButStepsThroughTheRows) {
    Fruit combo;
    combo.text_properties().put_Locked(true);
    combo.journal().take_all();
    combo.user.type(u"b");
    EXPECT_EQ(combo.object().Text(), u"Vellora1");
    combo.user.press_key(down);
    EXPECT_EQ(combo.object().Text(), u"Apple");
    EXPECT_EQ(combo.journal().take_events(), (Lines{"KeyDown(66, 0)", "KeyPress(98)", "KeyUp(66, 0)",
                                                    "KeyDown(40, 0)", "Click", "KeyUp(40, 0)"}));
}

// A form that moves the focus on Enter gets the key-up itself.
TEST(TypingSequence, AKeyLetGoElsewhereIsNoLongerDown) {
    Fruit combo;
    std::int16_t key = 13;
    std::int16_t shift = 0;
    combo.text_box(0).listener()->text_key_down(key, shift);
    combo.user.click_elsewhere();
    combo.object().put_Text(u"ap");
    EXPECT_EQ(combo.object().Text(), u"ap");
    EXPECT_EQ(combo.selection().ListIndex(), -1);
}

TEST(TypingSequence, AHandlerMayRewriteTheTextAndIsNotAskedForever) {
    Fruit combo;
    int changes = 0;
    combo.events.on_change = [&] {
        ++changes;
        combo.object().put_Text(u"APPLE");
    };
    combo.user.type(u"a");
    EXPECT_GT(changes, 1);
    EXPECT_LT(changes, 10);
}

TEST(ARefusingHost, KeepsItsTextFromTheUser) {
    Fruit combo;
    combo.site.refused = u"Text";
    combo.user.type(u"b");
    combo.user.press_delete();
    EXPECT_EQ(combo.object().Text(), u"Vellora1");
    EXPECT_EQ(combo.journal().take_all(),
              (Lines{"KeyDown(66, 0)", "KeyPress(98)", "KeyUp(66, 0)", "KeyDown(46, 0)", "KeyUp(46, 0)"}));
}

TEST(ARefusingHost, KeepsItsTextFromAProgram) {
    Fruit combo;
    combo.site.refused = u"Text";
    combo.object().put_Text(u"other");
    combo.text_properties().put_SelText(u"other");
    EXPECT_EQ(combo.object().Text(), u"Vellora1");
    EXPECT_EQ(combo.journal().take_all(), Lines{});
}

TEST(ARefusingHost, GetsTheTextOfTheRowItsUserChooses) {
    Fruit combo;
    combo.site.refused = u"Text";
    combo.user.press_key(down);
    EXPECT_EQ(combo.object().Text(), u"Apple");
}

} // namespace vellora::test
