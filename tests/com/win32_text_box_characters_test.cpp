// Characters of two units under the keys that delete and move: whatever the platform's field does with them, none
// is ever cut in two.
#include "com/support/composition.h"
#include "com/support/text_box_typing_test.h"

namespace vellora::test {
namespace {

class TextBoxCharactersTest : public TextBoxTypingTest {
protected:
    void press(WPARAM code) { post(box_.window(), WM_KEYDOWN, code, 1); }
    std::int32_t caret() {
        EXPECT_EQ(0, box_.selection_length());
        return box_.selection_start();
    }
    /// Holds a key down for the thread until the end.
    class Held {
    public:
        explicit Held(int key) : key_(key) { set(0x80); }
        ~Held() { set(0); }

    private:
        void set(BYTE state) const {
            BYTE keys[256];
            GetKeyboardState(keys);
            keys[key_] = state;
            SetKeyboardState(keys);
        }
        int key_;
    };
};

TEST_F(TextBoxCharactersTest, BackspaceTakesAWholeCharacter) {
    start_with(u"a\U0001F600b");
    box_.set_selection_start(3);
    type(u"\b");
    EXPECT_EQ(box_.text(), u"ab");
    EXPECT_EQ(caret(), 1);
    EXPECT_EQ(take_lines(), (Lines{"key press 8", "changed"}));
    type(u"\b");
    EXPECT_EQ(box_.text(), u"b");
}

TEST_F(TextBoxCharactersTest, DeleteTakesAWholeCharacter) {
    start_with(u"a\U0001F600b");
    box_.set_selection_start(1);
    press(VK_DELETE);
    EXPECT_EQ(box_.text(), u"ab");
    EXPECT_EQ(caret(), 1);
    EXPECT_EQ(take_lines(), (Lines{"key down 46 0", "changed"}));
    press(VK_DELETE);
    EXPECT_EQ(box_.text(), u"a");
}

// With Ctrl or Shift the platform may mean something else by it, such as the rest of the line.
TEST_F(TextBoxCharactersTest, DeleteWithAnotherKeyMeansWhatItMeansAnywhere) {
    for (const int modifier : {VK_CONTROL, VK_SHIFT}) {
        const Held held(modifier);
        start_with(u"abcd");
        box_.set_selection_start(1);
        press(VK_DELETE);
        std::u16string left = box_.text();
        start_with(u"a\U0001F600d");
        box_.set_selection_start(1);
        press(VK_DELETE);
        if (const auto at = left.find(u"bc"); at != left.npos) {
            left.replace(at, 2, face);
        }
        EXPECT_EQ(box_.text(), left) << modifier;
    }
}

TEST_F(TextBoxCharactersTest, ADeletedCharacterComesBackWhole) {
    start_with(u"a\U0001F600");
    box_.set_selection_start(3);
    type(u"\b");
    send(EM_UNDO);
    EXPECT_EQ(box_.text(), u"a\U0001F600");
}

TEST_F(TextBoxCharactersTest, DeletingASelectionTakesNoMore) {
    start_with(u"\U0001F600ab\U0001F600");
    select(2, 1);
    type(u"\b");
    EXPECT_EQ(box_.text(), u"\U0001F600b\U0001F600");
    select(2, 1);
    press(VK_DELETE);
    EXPECT_EQ(box_.text(), u"\U0001F600\U0001F600");
}

TEST_F(TextBoxCharactersTest, DeletingInALockedFieldLeavesTheCaretWhereItIs) {
    start_with(u"a\U0001F600");
    box_.set_selection_start(3);
    box_.set_locked(true);
    type(u"\b");
    EXPECT_EQ(caret(), 3);
    box_.set_locked(false);
    journal_.may_change = [] { return false; };
    type(u"\b");
    EXPECT_EQ(box_.text(), u"a\U0001F600");
    EXPECT_EQ(caret(), 3);
}

TEST_F(TextBoxCharactersTest, ArrowsStepOverAWholeCharacter) {
    start_with(u"a\U0001F600b");
    box_.set_selection_start(1);
    press(VK_RIGHT);
    EXPECT_EQ(caret(), 3);
    press(VK_LEFT);
    EXPECT_EQ(caret(), 1);
    press(VK_LEFT);
    EXPECT_EQ(caret(), 0);
}

TEST_F(TextBoxCharactersTest, ArrowsSelectWholeCharacters) {
    start_with(u"a\U0001F600b");
    box_.set_selection_start(1);
    const Held shift(VK_SHIFT);
    press(VK_RIGHT);
    EXPECT_EQ(box_.selected_text(), face);
    press(VK_RIGHT);
    EXPECT_EQ(box_.selected_text(), u"\U0001F600b");
    press(VK_LEFT);
    press(VK_LEFT);
    EXPECT_EQ(caret(), 1);
    press(VK_LEFT);
    EXPECT_EQ(box_.selected_text(), u"a");
}

TEST_F(TextBoxCharactersTest, ClicksPutTheCaretBesideACharacter) {
    start_with(u"\U0001F600\U0001F600\U0001F600\U0001F600");
    for (WORD x = 0; x < 100; ++x) {
        post(box_.window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, 5));
        post(box_.window(), WM_LBUTTONUP, 0, MAKELPARAM(x, 5));
        EXPECT_EQ(0, caret() % 2) << x;
    }
}

TEST_F(TextBoxCharactersTest, AnInputMethodsCharacterIsTypedLikeAnyOther) {
    SendMessageW(window_of(box_), WM_IME_CHAR, 0x4F60, 1);
    pump();
    EXPECT_EQ(take_lines(), (Lines{"key press 20320", "changed"}));
    journal_.may_change = [] { return false; };
    SendMessageW(window_of(box_), WM_IME_CHAR, 0x4F60, 1);
    pump();
    EXPECT_EQ(box_.text(), u"\u4F60");
}

TEST_F(TextBoxCharactersTest, WhatIsComposedIsCutAtTheLimitBetweenCharacters) {
    Composition composition(window_of(box_));
    if (!composition.works()) {
        GTEST_SKIP() << "no input method here";
    }
    box_.set_max_length(3);
    composition.show(L"a");
    composition.finish(L"ab\xD83D\xDE00");
    pump();
    EXPECT_EQ(box_.text(), u"ab");
}

TEST_F(TextBoxCharactersTest, ATextSetWhileComposingStays) {
    Composition composition(window_of(box_));
    if (!composition.works()) {
        GTEST_SKIP() << "no input method here";
    }
    composition.show(L"nih");
    box_.set_text(u"set");
    composition.show(L"niha");
    composition.finish(L"\u4F60");
    pump();
    EXPECT_NE(box_.text().find(u"\u4F60"), std::u16string::npos);
    EXPECT_LE(box_.text().size(), 4U);
}

} // namespace
} // namespace vellora::test
