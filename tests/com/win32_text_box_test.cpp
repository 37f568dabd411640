// The native text box: events, texts, selection, looks and its life among handlers.
#include "com/support/peers_test.h"

#include "runtime/host_error.h"
#include "widgets/win32/text_box_peer.h"

#include <memory>

namespace vellora::test {
namespace {

using win32::OleFont;
using win32::TextAlignment;
using win32::TextBoxPeer;

constexpr COLORREF light_green = 0x00C0FFC0;

class Win32TextBoxTest : public PeersTest {
protected:
    Win32TextBoxTest() {
        box_->move({15, 15, 2400, 240});
        box_->set_visible(true);
        box_->listen(&journal_);
    }

    void focus_box() {
        box_->focus();
        take_lines();
    }

    TextBoxJournal journal_{lines_};
    std::unique_ptr<TextBoxPeer> box_ = std::make_unique<TextBoxPeer>(surface_, TextAlignment::left);
};

TEST_F(Win32TextBoxTest, ReportsAChangeOfItsTextOnceAndTheSameTextNever) {
    box_->set_text(u"abc");
    EXPECT_EQ(take_lines(), Lines{"changed"});
    box_->set_text(u"abc");
    EXPECT_EQ(take_lines(), Lines{});
    EXPECT_EQ(box_->text(), u"abc");
}

TEST_F(Win32TextBoxTest, CutsATextAtItsFirstZeroAndAtTheMaximalLength) {
    box_->set_text(std::u16string_view(u"ab\0cd", 5));
    EXPECT_EQ(box_->text(), u"ab");
    box_->set_max_length(4);
    box_->set_text(u"123456");
    EXPECT_EQ(box_->text(), u"1234");
    box_->set_max_length(0);
    box_->set_text(u"123456");
    EXPECT_EQ(box_->text(), u"123456");
}

TEST_F(Win32TextBoxTest, GivesATextOfEveryLengthBackWhole) {
    for (const std::size_t length : {0U, 1U, 126U, 127U, 128U, 129U, 5000U}) {
        std::u16string text(length, u'x');
        if (length > 0)
            text.back() = u'y';
        box_->set_text(text);
        EXPECT_EQ(box_->text(), text) << length;
    }
}

TEST_F(Win32TextBoxTest, TypingRaisesKeyPressAndThenChange) {
    focus_box();
    type(box_->window(), u"ab");
    EXPECT_EQ(take_lines(), (Lines{"key press 97", "changed", "key press 98", "changed"}));
    EXPECT_EQ(box_->text(), u"ab");
}

TEST_F(Win32TextBoxTest, ReplacingTheSelectionByTheSameTextIsNoChange) {
    box_->set_text(u"a");
    focus_box();
    box_->set_selection_start(0);
    box_->set_selection_length(1);
    type(box_->window(), u"a");
    EXPECT_EQ(take_lines(), Lines{"key press 97"});
}

TEST_F(Win32TextBoxTest, AHandlerSwallowsOrReplacesACharacter) {
    focus_box();
    journal_.on_key_press = [](std::int16_t& code) {
        code = static_cast<std::int16_t>(code == 'a' ? 0 : 'Z');
    };
    type(box_->window(), u"ab");
    EXPECT_EQ(box_->text(), u"Z");
}

TEST_F(Win32TextBoxTest, CharactersOfTwoUnitsAndThoseAbove32767ArriveWhole) {
    focus_box();
    type(box_->window(), u"\U0001F600\uFF21");
    EXPECT_EQ(box_->text(), u"\U0001F600\uFF21");
}

TEST_F(Win32TextBoxTest, EnterEscapeAndTabTypeNothing) {
    focus_box();
    type(box_->window(), u"\r\x1B\t");
    EXPECT_EQ(take_lines(), (Lines{"key press 13", "key press 27", "key press 9"}));
    EXPECT_EQ(box_->text(), u"");
}

TEST_F(Win32TextBoxTest, AHandlerSwallowsOrReplacesAKey) {
    box_->set_text(u"abc");
    focus_box();
    box_->set_selection_start(0);
    journal_.on_key_down = [](std::int16_t& code) { code = 0; };
    post(box_->window(), WM_KEYDOWN, VK_END, 1);
    EXPECT_EQ(box_->selection_start(), 0);
    journal_.on_key_down = [](std::int16_t& code) { code = VK_END; };
    post(box_->window(), WM_KEYDOWN, VK_HOME, 1);
    EXPECT_EQ(box_->selection_start(), 3);
    EXPECT_EQ(take_lines(), (Lines{"key down 35 0", "key down 36 0"}));
}

TEST_F(Win32TextBoxTest, SystemKeysAreEventsToo) {
    focus_box();
    // Not F10: that goes into the form's menu and stays there.
    post(box_->window(), WM_SYSKEYDOWN, VK_F8, 1);
    post(box_->window(), WM_SYSKEYUP, VK_F8, 1);
    EXPECT_EQ(take_lines(), (Lines{"key down 119 0", "key up 119 0"}));
}

TEST_F(Win32TextBoxTest, MouseEventsCarryButtonsAndTwips) {
    focus_box();
    const LPARAM place = MAKELPARAM(4, 2);
    post(box_->window(), WM_MOUSEMOVE, MK_LBUTTON | MK_MBUTTON, place);
    post(box_->window(), WM_LBUTTONDOWN, MK_LBUTTON, place);
    post(box_->window(), WM_LBUTTONUP, 0, place);
    const auto x = std::to_string(4 * static_cast<int>(surface_.twips_per_pixel_x()));
    const auto y = std::to_string(2 * static_cast<int>(surface_.twips_per_pixel_y()));
    EXPECT_EQ(take_lines(), (Lines{"mouse move 5 0 " + x + ' ' + y, "mouse down 1 0 " + x + ' ' + y,
                                   "mouse up 1 0 " + x + ' ' + y}));
}

TEST_F(Win32TextBoxTest, APressBringsTheFocusBeforeTheMouseEvent) {
    post(box_->window(), WM_LBUTTONDOWN, MK_LBUTTON, 0);
    EXPECT_EQ(take_lines(), (Lines{"got focus", "mouse down 1 0 0 0"}));
}

TEST_F(Win32TextBoxTest, TheSecondPressOfADoubleClickIsTheDoubleClick) {
    focus_box();
    post(box_->window(), WM_LBUTTONDBLCLK, MK_LBUTTON, 0);
    EXPECT_EQ(take_lines(), Lines{"double click"});
}

TEST_F(Win32TextBoxTest, SelectionFollowsItsNumbersWithinTheText) {
    box_->set_text(u"abcdef");
    box_->set_selection_start(2);
    box_->set_selection_length(3);
    EXPECT_EQ(box_->selected_text(), u"cde");
    box_->set_selection_start(1);
    EXPECT_EQ(box_->selection_length(), 0);
    box_->set_selection_length(2'000'000'000);
    EXPECT_EQ(box_->selection_length(), 5);
    box_->set_selection_start(100);
    EXPECT_EQ(box_->selection_start(), 6);
}

TEST_F(Win32TextBoxTest, SelectingALongTextLeavesItsBeginningInSight) {
    const std::u16string text(400, u'W');
    box_->set_text(text);
    box_->set_selection_start(0);
    box_->set_selection_length(400);
    EXPECT_EQ(0, SendMessageW(window_of(*box_), EM_GETFIRSTVISIBLELINE, 0, 0));
    EXPECT_EQ(box_->selected_text(), text);
    EXPECT_EQ(box_->selection_start(), 0);
}

TEST_F(Win32TextBoxTest, RefusesNegativeNumbers) {
    EXPECT_EQ(raised([&] { box_->set_selection_start(-1); }), error_number::invalid_property_value);
    EXPECT_EQ(raised([&] { box_->set_selection_length(-1); }), error_number::invalid_property_value);
    EXPECT_EQ(raised([&] { box_->set_max_length(-1); }), error_number::invalid_property_value);
}

TEST_F(Win32TextBoxTest, ReplacesTheSelectionAsFarAsThereIsRoom) {
    box_->set_max_length(5);
    box_->set_text(u"abcd");
    box_->set_selection_start(1);
    box_->set_selection_length(2);
    take_lines();
    box_->set_selected_text(u"12345");
    EXPECT_EQ(box_->text(), u"a123d");
    EXPECT_EQ(box_->selection_start(), 4);
    EXPECT_EQ(box_->selection_length(), 0);
    EXPECT_EQ(take_lines(), Lines{"changed"});
}

TEST_F(Win32TextBoxTest, ALockedBoxTakesNoTypingButEveryAssignment) {
    box_->set_locked(true);
    focus_box();
    type(box_->window(), u"x");
    EXPECT_EQ(box_->text(), u"");
    box_->set_text(u"set");
    EXPECT_EQ(box_->text(), u"set");
    EXPECT_TRUE(box_->locked());
    box_->set_locked(false);
    EXPECT_FALSE(box_->locked());
}

TEST_F(Win32TextBoxTest, KeepsItsBackColorWhenLockedOrDisabled) {
    box_->set_back_color(light_green);
    EXPECT_EQ(pixel(window_of(*box_), 100, 5), light_green);
    box_->set_locked(true);
    EXPECT_EQ(pixel(window_of(*box_), 100, 5), light_green);
    box_->set_enabled(false);
    EXPECT_EQ(pixel(window_of(*box_), 100, 5), light_green);
}

TEST_F(Win32TextBoxTest, RefusesWhatIsNoColorAndKeepsTheOldOne) {
    box_->set_fore_color(light_green);
    EXPECT_EQ(raised([&] { box_->set_fore_color(0x80000064); }), error_number::invalid_property_value);
    EXPECT_EQ(raised([&] { box_->set_back_color(0x03000000); }), error_number::invalid_property_value);
    EXPECT_EQ(box_->fore_color(), light_green);
}

TEST_F(Win32TextBoxTest, MarginsOutliveAChangeOfTheFont) {
    SendMessageW(window_of(*box_), EM_SETMARGINS, EC_LEFTMARGIN, MAKELPARAM(9, 0));
    SendMessageW(window_of(*box_), EM_SETMARGINS, EC_RIGHTMARGIN, MAKELPARAM(0, 7));
    box_->set_font(OleFont::create(u"Tahoma", 12));
    EXPECT_EQ(SendMessageW(window_of(*box_), EM_GETMARGINS, 0, 0), MAKELPARAM(9, 7));
}

TEST_F(Win32TextBoxTest, TakesTheFontObjectsNewHandleWhenTheObjectChanges) {
    const auto font = OleFont::create(u"Tahoma", 8);
    box_->set_font(font);
    const auto before = SendMessageW(window_of(*box_), WM_GETFONT, 0, 0);
    font->font()->put_Bold(TRUE);
    const auto after = SendMessageW(window_of(*box_), WM_GETFONT, 0, 0);
    EXPECT_NE(before, after);
    LOGFONTW description{};
    GetObjectW(reinterpret_cast<HGDIOBJ>(after), sizeof description, &description);
    EXPECT_EQ(description.lfWeight, FW_BOLD);
}

TEST_F(Win32TextBoxTest, CannotTakeTheFocusWhenHiddenOrDisabled) {
    box_->set_enabled(false);
    EXPECT_EQ(raised([&] { box_->focus(); }), error_number::invalid_procedure_call);
    box_->set_enabled(true);
    surface_.set_enabled(false);
    EXPECT_EQ(raised([&] { box_->focus(); }), error_number::invalid_procedure_call);
    surface_.set_enabled(true);
    ShowWindow(surface_.handle(), SW_HIDE);
    EXPECT_EQ(raised([&] { box_->focus(); }), error_number::invalid_procedure_call);
}

TEST_F(Win32TextBoxTest, MovesInTwipsAndSitsOnPixels) {
    const float pixel_size = surface_.twips_per_pixel_x();
    box_->move({pixel_size, pixel_size * 2, pixel_size * 20 + 2, pixel_size * 10 - 2});
    const Bounds bounds = box_->bounds();
    EXPECT_EQ(bounds.left, pixel_size);
    EXPECT_EQ(bounds.top, pixel_size * 2);
    EXPECT_EQ(bounds.width, pixel_size * 20);
    EXPECT_EQ(bounds.height, pixel_size * 10);
}

TEST_F(Win32TextBoxTest, KeepsItsTextWhenItsWindowIsDestroyed) {
    box_->set_text(u"kept");
    DestroyWindow(surface_.handle());
    EXPECT_EQ(box_->window(), 0);
    EXPECT_EQ(box_->text(), u"kept");
    box_->set_selection_start(1);
    box_->set_font(OleFont::create(u"Tahoma", 8));
}

TEST_F(Win32TextBoxTest, MayBeEndedByTheHandlerOfAKey) {
    focus_box();
    const WindowHandle window = box_->window();
    journal_.on_key_down = [&](std::int16_t&) { box_.reset(); };
    post(window, WM_KEYDOWN, 'A', 1);
    EXPECT_EQ(box_, nullptr);
    EXPECT_EQ(take_lines(), Lines{"key down 65 0"});
}

TEST_F(Win32TextBoxTest, MayBeEndedByTheHandlerOfItsChange) {
    journal_.on_changed = [&] { box_.reset(); };
    box_->set_text(u"abc");
    EXPECT_EQ(box_, nullptr);
}

} // namespace
} // namespace vellora::test
