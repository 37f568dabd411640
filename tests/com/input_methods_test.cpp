// What people type with keys that mean no letter by themselves: Ctrl with Shift for the direction of reading, and
// characters by their numbers with Alt.
#include "com/support/text_field_test.h"

namespace vellora::test {
namespace {

constexpr LPARAM pressed = 1;
constexpr LPARAM released = static_cast<LPARAM>(0xC0000001U);
constexpr LPARAM right_shift = 0x36 << 16; // its scan code
constexpr LPARAM with_alt = 1 << 29;

class UnusualKeys : public TextFieldTest {
protected:
    void press_control_shift(LPARAM which) {
        const Held control(VK_CONTROL);
        SendMessageW(field(), WM_KEYDOWN, VK_CONTROL, pressed);
        {
            const Held shift(VK_SHIFT);
            SendMessageW(field(), WM_KEYDOWN, VK_SHIFT, pressed | which);
        }
        SendMessageW(field(), WM_KEYUP, VK_SHIFT, released | which);
    }
    void let_control_go() { SendMessageW(field(), WM_KEYUP, VK_CONTROL, released); }

    /// Alt held, digits on the number pad, Alt let go; the character comes then.
    void type_by_number(std::initializer_list<WPARAM> digits, wchar_t character) {
        {
            const Held alt(VK_MENU);
            SendMessageW(field(), WM_SYSKEYDOWN, VK_MENU, pressed | with_alt);
            for (const WPARAM digit : digits) {
                SendMessageW(field(), WM_SYSKEYDOWN, VK_NUMPAD0 + digit, pressed | with_alt);
                SendMessageW(field(), WM_SYSKEYUP, VK_NUMPAD0 + digit, released | with_alt);
            }
        }
        SendMessageW(field(), WM_KEYUP, VK_MENU, released);
        SendMessageW(field(), WM_CHAR, character, pressed);
        container_.pump();
    }
    static Lines events_of_0228(std::initializer_list<const char*> inside) {
        Lines lines{"KeyUp(I2 96, I2 4)",  "KeyUp(I2 98, I2 4)", "KeyUp(I2 98, I2 4)",
                    "KeyUp(I2 104, I2 4)", "KeyUp(I2 18, I2 0)", "KeyPress(I2 228)"};
        lines.insert(lines.end(), inside.begin(), inside.end());
        return lines;
    }
    void type_a_umlaut() { type_by_number({0, 2, 2, 8}, L'\u00E4'); }
    void make_read_from_right_to_left() {
        SetWindowLongW(field(), GWL_EXSTYLE, GetWindowLongW(field(), GWL_EXSTYLE) | WS_EX_RTLREADING);
        InvalidateRect(field(), nullptr, TRUE);
    }
};

TEST_F(UnusualKeys, ControlWithShiftRaisesOnlyItsKeyUps) {
    for (const LPARAM which : {LPARAM{0}, right_shift}) {
        press_control_shift(which);
        let_control_go();
        EXPECT_TRUE(same_lines({"KeyUp(I2 16, I2 2)", "KeyUp(I2 17, I2 0)"}, events()));
    }
    EXPECT_EQ(L"Vellora1", text());
    EXPECT_FALSE(is_open());
}

TEST_F(UnusualKeys, AFieldReadFromTheRightIsTypedInAsBefore) {
    c().put_AutoComplete(VARIANT_TRUE);
    c().AddItem(Variant(L"\u05E9\u05DC\u05D5\u05DD").get(), -1);
    make_read_from_right_to_left();
    events();
    SendMessageW(field(), WM_KEYDOWN, 'A', pressed);
    SendMessageW(field(), WM_CHAR, 0x05E9, pressed);
    SendMessageW(field(), WM_KEYUP, 'A', released);
    EXPECT_EQ(L"\u05E9\u05DC\u05D5\u05DD", text());
    EXPECT_EQ(L"\u05DC\u05D5\u05DD", selected_text());
    EXPECT_EQ(3, list_index());
    c().put_Alignment(1);
    EXPECT_EQ(L"\u05E9\u05DC\u05D5\u05DD", text());
    EXPECT_EQ(field(), GetFocus());
}

TEST_F(UnusualKeys, ACharacterByItsNumberIsOneKeyPressAndOneChange) {
    type_a_umlaut();
    EXPECT_EQ(L"\u00E4", text());
    EXPECT_TRUE(same_lines(events_of_0228({"Change()"}), events()));
    EXPECT_EQ(-1, list_index());
    EXPECT_FALSE(is_open());
}

// No key without Alt is down when it comes.
TEST_F(UnusualKeys, ACharacterByItsNumberIsNotCompleted) {
    c().AddItem(Variant(L"\u00C4pfel").get(), -1);
    c().put_AutoComplete(VARIANT_TRUE);
    type_a_umlaut();
    EXPECT_EQ(L"\u00E4", text());
    EXPECT_TRUE(same_lines(events_of_0228({"Change()"}), events()));
}

TEST_F(UnusualKeys, ACharacterByItsNumberKeepsToTheLimit) {
    c().put_MaxLength(8);
    c().put_SelStart(8);
    events();
    type_a_umlaut();
    EXPECT_EQ(L"Vellora1", text());
    EXPECT_TRUE(same_lines(events_of_0228({}), events()));
}

TEST_F(UnusualKeys, ALockedFieldTakesNoCharacterByItsNumber) {
    c().put_Locked(VARIANT_TRUE);
    type_a_umlaut();
    EXPECT_EQ(L"Vellora1", text());
    EXPECT_TRUE(same_lines(events_of_0228({}), events()));
}

TEST_F(UnusualKeys, AHandlerMayTakeACharacterByItsNumberAway) {
    site().events().on("KeyPress", [](EventArguments& arguments) { arguments.set(0, Variant(0)); });
    type_a_umlaut();
    EXPECT_EQ(L"Vellora1", text());
}

// The digits of the number pad are arrows and the like while its lock is off.
TEST_F(UnusualKeys, NumberPadKeysWithAltDoNotStepThroughTheList) {
    const Held alt(VK_MENU);
    for (const WPARAM key : {VK_DOWN, VK_UP, VK_NEXT, VK_DELETE, VK_F4 + 1}) {
        SendMessageW(field(), WM_SYSKEYDOWN, key, pressed | with_alt);
        SendMessageW(field(), WM_SYSKEYUP, key, released | with_alt);
        EXPECT_TRUE(same_lines({"KeyUp(I2 " + std::to_string(key) + ", I2 4)"}, events()));
    }
    EXPECT_EQ(-1, list_index());
    EXPECT_EQ(L"Vellora1", text());
    EXPECT_FALSE(is_open());
}

} // namespace
} // namespace vellora::test
