// Typing, the clipboard and input methods in the native text box.
#include "com/support/composition.h"
#include "com/support/text_box_typing_test.h"

#include "support/container/clipboard.h"

#include <algorithm>
#include <memory>

namespace vellora::test {
namespace {

constexpr WPARAM control_a = 1;
constexpr WPARAM control_backspace = 127;

TEST_F(TextBoxTypingTest, ACharacterOfTwoUnitsIsOneChange) {
    type(face);
    EXPECT_EQ(take_lines(), (Lines{"key press -10179", "key press -8704", "changed"}));
    EXPECT_EQ(box_.text(), face);
}

TEST_F(TextBoxTypingTest, HalfACharacterIsNothing) {
    type(u"\xD83D");
    type(u"x");
    type(u"\xDE00");
    EXPECT_EQ(box_.text(), u"x");
}

TEST_F(TextBoxTypingTest, ACharacterWhoseOneHalfIsSwallowedIsNothing) {
    journal_.on_key_press = [](std::int16_t& code) {
        code = static_cast<std::int16_t>(code == -8704 ? 0 : code);
    };
    type(face);
    type(u"x");
    journal_.on_key_press = [](std::int16_t& code) {
        code = static_cast<std::int16_t>(code == -10179 ? 0 : code);
    };
    type(face);
    EXPECT_EQ(box_.text(), u"x");
}

TEST_F(TextBoxTypingTest, ACharacterOfTwoUnitsNeedsRoomForBoth) {
    box_.set_max_length(2);
    start_with(u"a");
    box_.set_selection_start(1);
    type(face);
    EXPECT_EQ(box_.text(), u"a");
    select(0, 1);
    type(face);
    EXPECT_EQ(box_.text(), face);
}

TEST_F(TextBoxTypingTest, LimitsCutNoCharacterInTwo) {
    box_.set_max_length(2);
    box_.set_text(u"a\U0001F600");
    EXPECT_EQ(box_.text(), u"a");
    box_.set_selection_start(1);
    box_.set_selected_text(face);
    EXPECT_EQ(box_.text(), u"a");
}

TEST_F(TextBoxTypingTest, ProgramsMayTypeACharacterAsOneNumber) {
    EXPECT_EQ(send(WM_UNICHAR, UNICODE_NOCHAR), TRUE);
    send(WM_UNICHAR, 0x1F600, 1);
    send(WM_UNICHAR, 0x05D0, 1);
    EXPECT_EQ(take_lines(),
              (Lines{"key press -10179", "key press -8704", "changed", "key press 1488", "changed"}));
    EXPECT_EQ(box_.text(), u"\U0001F600\u05D0");
    for (const WPARAM no_character : {0xD800U, 0xDFFFU, 0x110000U, 0xFFFFFFFEU}) {
        send(WM_UNICHAR, no_character, 1);
    }
    EXPECT_EQ(take_lines(), Lines{});
}

TEST_F(TextBoxTypingTest, ControlASelectsAll) {
    start_with(u"abc");
    box_.set_selection_start(3);
    post(box_.window(), WM_CHAR, control_a, 1);
    EXPECT_EQ(box_.selected_text(), u"abc");
    EXPECT_EQ(take_lines(), Lines{"key press 1"});
    box_.set_selection_start(0);
    journal_.on_key_press = [](std::int16_t& code) { code = 0; };
    post(box_.window(), WM_CHAR, control_a, 1);
    EXPECT_EQ(box_.selection_length(), 0);
}

TEST_F(TextBoxTypingTest, ControlBackspaceTypesNoBox) {
    start_with(u"abc");
    post(box_.window(), WM_CHAR, control_backspace, 1);
    EXPECT_EQ(box_.text(), u"abc");
    EXPECT_EQ(take_lines(), Lines{"key press 127"});
}

TEST_F(TextBoxTypingTest, CutsCopiesPastesAndUndoes) {
    start_with(u"abcdef");
    select(1, 2);
    send(WM_COPY);
    EXPECT_EQ(clipboard_text(), L"bc");
    EXPECT_EQ(take_lines(), Lines{});
    select(4, 2);
    send(WM_CUT);
    EXPECT_EQ(box_.text(), u"abcd");
    EXPECT_EQ(clipboard_text(), L"ef");
    send(EM_UNDO);
    EXPECT_EQ(box_.text(), u"abcdef");
    select(0, 0);
    send(WM_PASTE);
    EXPECT_EQ(box_.text(), u"efabcdef");
    select(0, 6);
    send(WM_CLEAR);
    EXPECT_EQ(box_.text(), u"ef");
    EXPECT_EQ(take_lines(), (Lines{"changed", "changed", "changed", "changed"}));
}

TEST_F(TextBoxTypingTest, PastesOneLineAsFarAsThereIsRoom) {
    set_clipboard_text(L"first\r\nsecond");
    send(WM_PASTE);
    EXPECT_EQ(box_.text(), u"first");
    box_.set_max_length(7);
    send(WM_PASTE);
    EXPECT_EQ(box_.text(), u"firstfi");
}

TEST_F(TextBoxTypingTest, PastingCutsNoCharacterInTwo) {
    set_clipboard_text(L"ab\xD83D\xDE00");
    box_.set_max_length(3);
    send(WM_PASTE);
    EXPECT_EQ(box_.text(), u"ab");
}

TEST_F(TextBoxTypingTest, ALockedBoxIsReadAndCopiedOnly) {
    start_with(u"abcdef");
    select(2, 2);
    send(WM_CLEAR);
    box_.set_locked(true);
    take_lines();
    set_clipboard_text(L"xyz");
    for (const UINT command : {UINT{WM_PASTE}, UINT{WM_CLEAR}, UINT{WM_UNDO}, UINT{EM_UNDO}}) {
        select(0, 1);
        send(command);
        EXPECT_EQ(box_.text(), u"abef") << command;
    }
    type(u"x\b\U0001F600");
    post(box_.window(), WM_KEYDOWN, VK_DELETE, 1);
    EXPECT_EQ(box_.text(), u"abef");
    post(box_.window(), WM_CHAR, control_a, 1);
    EXPECT_EQ(box_.selected_text(), u"abef");
    send(WM_CUT);
    EXPECT_EQ(box_.text(), u"abef");
    send(WM_COPY);
    EXPECT_EQ(clipboard_text(), L"abef");
}

TEST_F(TextBoxTypingTest, ARefusedChangeDoesNotHappen) {
    start_with(u"abcdef");
    select(2, 2);
    send(WM_CLEAR);
    take_lines();
    int asked = 0;
    journal_.may_change = [&] {
        ++asked;
        return false;
    };
    set_clipboard_text(L"xyz");
    select(0, 1);
    for (const UINT command : {UINT{WM_CUT}, UINT{WM_PASTE}, UINT{WM_CLEAR}, UINT{WM_UNDO}, UINT{EM_UNDO}}) {
        send(command);
    }
    type(u"x\b\U0001F600");
    post(box_.window(), WM_KEYDOWN, VK_DELETE, 1);
    EXPECT_EQ(box_.text(), u"abef");
    EXPECT_EQ(asked, 9);
    box_.set_locked(true);
    type(u"x");
    EXPECT_EQ(asked, 9);
}

TEST_F(TextBoxTypingTest, WhatIsBeingComposedIsNoChangeYet) {
    Composition composition(window_of(box_));
    if (!composition.works()) {
        GTEST_SKIP() << "no input method here";
    }
    composition.show(L"ni");
    composition.show(L"nih");
    EXPECT_EQ(take_lines(), Lines{});
    composition.finish(L"\u4F60");
    pump();
    EXPECT_EQ(box_.text(), u"\u4F60");
    const Lines lines = take_lines();
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(lines.back(), "changed");
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "changed"), 1);
}

TEST_F(TextBoxTypingTest, ALockedBoxIsNotComposedInto) {
    start_with(u"abc");
    box_.set_locked(true);
    Composition composition(window_of(box_));
    composition.show(L"ni");
    composition.finish(L"\u4F60");
    pump();
    EXPECT_EQ(box_.text(), u"abc");
}

TEST_F(TextBoxTypingTest, MayBeLeftByTheHandlerOfACharactersFirstHalf) {
    auto box = std::make_unique<win32::TextBoxPeer>(surface_, win32::TextAlignment::left);
    box->set_visible(true);
    box->listen(&journal_);
    journal_.on_key_press = [&](std::int16_t&) { box.reset(); };
    SendMessageW(window_of(*box), WM_UNICHAR, 0x1F600, 1);
    EXPECT_EQ(box, nullptr);
}

TEST_F(TextBoxTypingTest, MayBeEndedByTheListenerThatIsAsked) {
    auto box = std::make_unique<win32::TextBoxPeer>(surface_, win32::TextAlignment::left);
    box->listen(&journal_);
    const HWND window = window_of(*box);
    journal_.may_change = [&] {
        box.reset();
        return true;
    };
    SendMessageW(window, WM_UNICHAR, 0x1F600, 1);
    EXPECT_EQ(box, nullptr);
}

TEST_F(TextBoxTypingTest, WantsArrowsAndCharactersOfADialogButNeitherTabNorEnter) {
    const LRESULT wanted = send(WM_GETDLGCODE);
    EXPECT_TRUE(wanted & DLGC_WANTARROWS);
    EXPECT_TRUE(wanted & DLGC_WANTCHARS);
    EXPECT_FALSE(wanted & (DLGC_WANTTAB | DLGC_WANTALLKEYS));
}

} // namespace
} // namespace vellora::test
