// The text field in a host: the events of typing, the switch of its alignment, bound text and bad settings.
#include "com/support/text_field_test.h"

#include <algorithm>
#include <climits>

namespace vellora::test {
namespace {

constexpr LPARAM release = static_cast<LPARAM>(0xC0000001U);

TEST_F(TextFieldTest, ALetterIsKeyDownKeyPressChangeAndKeyUp) {
    press('X');
    EXPECT_TRUE(
        same_lines({"KeyDown(I2 88, I2 0)", "KeyPress(I2 120)", "Change()", "KeyUp(I2 88, I2 0)"}, events()));
    EXPECT_EQ(L"x", text());
}

TEST_F(TextFieldTest, ACompletedLetterChangesTwice) {
    c().put_AutoComplete(VARIANT_TRUE);
    press('A');
    EXPECT_TRUE(same_lines(
        {"KeyDown(I2 65, I2 0)", "KeyPress(I2 97)", "Click()", "Change()", "Change()", "KeyUp(I2 65, I2 0)"},
        events()));
    EXPECT_EQ(L"Apple", text());
    EXPECT_EQ(L"pple", selected_text());
    press(VK_BACK);
    EXPECT_TRUE(same_lines({"KeyDown(I2 8, I2 0)", "KeyPress(I2 8)", "KeyUp(I2 8, I2 0)"}, events()));
    EXPECT_EQ(L"A", text());
    press(VK_BACK);
    EXPECT_TRUE(same_lines({"KeyDown(I2 8, I2 0)", "KeyPress(I2 8)", "KeyUp(I2 8, I2 0)"}, events()));
    EXPECT_EQ(L"", text());
    press('B');
    EXPECT_EQ(L"Banana", text());
}

TEST_F(TextFieldTest, AnAstralCharacterIsCompletedWhole) {
    c().AddItem(Variant(L"\U0001F600 grin").get(), -1);
    c().AddItem(Variant(L"\U0001F601 beam").get(), -1);
    c().put_AutoComplete(VARIANT_TRUE);
    events();
    PostMessageW(field(), WM_KEYDOWN, VK_PACKET, 1);
    for (const WPARAM unit : {0xD83DU, 0xDE01U})
        SendMessageW(field(), WM_CHAR, unit, 1);
    container_.pump();
    EXPECT_EQ(std::wstring(L"\xD83D\xDE01"), text());
    c().put_Text(Bstr(L"").get());
    PostMessageW(field(), WM_KEYDOWN, VK_PROCESSKEY, 1);
    container_.pump();
    events();
    for (const WPARAM unit : {0xD83DU, 0xDE01U})
        SendMessageW(field(), WM_CHAR, unit, 1);
    EXPECT_TRUE(same_lines({"KeyPress(I2 -10179)", "KeyPress(I2 -8703)", "Click()", "Change()", "Change()"},
                           events()));
    EXPECT_EQ(std::wstring(L"\U0001F601 beam"), text());
    EXPECT_EQ(L" beam", selected_text());
}

TEST_F(TextFieldTest, HandlersWriteTheirArgumentsBack) {
    site().events().on("KeyDown", [](EventArguments& arguments) { arguments.set(0, Variant(40)); });
    press('X');
    EXPECT_TRUE(same_lines(
        {"KeyDown(I2 88, I2 0)", "Click()", "KeyPress(I2 120)", "Change()", "KeyUp(I2 88, I2 0)"}, events()));
    site().events().on("KeyDown", {});
    c().put_Text(Bstr(L"").get());
    site().events().on("KeyPress", [](EventArguments& arguments) { arguments.set(0, Variant(int{L'Z'})); });
    press('X');
    EXPECT_EQ(L"Z", text());
    site().events().on("KeyPress", [](EventArguments& arguments) { arguments.set(0, Variant(0)); });
    press('X');
    EXPECT_EQ(L"Z", text());
}

TEST_F(TextFieldTest, ModifiedKeysRaiseNoKeyDown) {
    for (const int modifier : {VK_SHIFT, VK_CONTROL, VK_MENU}) {
        const Held held(modifier);
        const std::string mask = modifier == VK_SHIFT ? "1" : modifier == VK_CONTROL ? "2" : "4";
        for (const WPARAM code : {WPARAM{VK_DOWN}, WPARAM{VK_UP}, WPARAM{VK_F4}}) {
            const bool system = modifier == VK_MENU;
            SendMessageW(field(), system ? WM_SYSKEYDOWN : WM_KEYDOWN, code, 1);
            SendMessageW(field(), system ? WM_SYSKEYUP : WM_KEYUP, code, release);
            EXPECT_TRUE(same_lines({"KeyUp(I2 " + std::to_string(code) + ", I2 " + mask + ")"}, events()));
        }
        EXPECT_EQ(-1, list_index());
        EXPECT_FALSE(is_open());
    }
}

TEST_F(TextFieldTest, TheMouseComesInTwipsOfTheField) {
    const SIZE twip = twips_per_pixel();
    const LPARAM place = MAKELPARAM(7, 3);
    for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP})
        SendMessageW(field(), message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON, place);
    const std::string rest =
        "(I2 1, I2 0, R4 " + std::to_string(7 * twip.cx) + ", R4 " + std::to_string(3 * twip.cy) + ")";
    EXPECT_TRUE(same_lines({"MouseDown" + rest, "MouseUp" + rest, "DblClick()", "MouseUp" + rest}, events()));
}

TEST_F(TextFieldTest, SwitchingTheAlignmentKeepsTheFocusAndSaysNothing) {
    c().put_Text(Bstr(L"abc").get());
    focus_field();
    for (const long alignment : {1, 2, 0}) {
        HWND before = GetFocus();
        EXPECT_EQ(S_OK, c().put_Alignment(alignment));
        container_.pump();
        EXPECT_NE(before, GetFocus());
        EXPECT_EQ(field(), GetFocus());
        EXPECT_EQ(L"abc", selected_text());
    }
    EXPECT_FALSE(site().log().contains("IOleControlSite::OnFocus"));
    EXPECT_TRUE(same_lines({}, events()));
}

TEST_F(TextFieldTest, SwitchingTheAlignmentLeavesTheListOpen) {
    open();
    events();
    c().put_Alignment(2);
    container_.pump();
    EXPECT_TRUE(is_open());
    EXPECT_EQ(list(), GetFocus());
    EXPECT_TRUE(same_lines({}, events()));
    c().HideList();
    container_.pump();
    EXPECT_EQ(field(), GetFocus());
}

TEST_F(TextFieldTest, AListLeftWhileNoFieldIsLiveClosesAndOpensAgain) {
    open();
    EXPECT_NE(S_OK, c().put_Alignment(7));
    events();
    site().log().take();
    SetFocus(make_edit());
    container_.pump();
    EXPECT_FALSE(is_open());
    EXPECT_TRUE(same_lines({"DropDown(I4 1)"}, events()));
    EXPECT_TRUE(site().log().contains("IOleControlSite::OnFocus(False)"));
    EXPECT_EQ(S_OK, c().put_Alignment(0));
    open();
    EXPECT_TRUE(is_open());
    c().HideList();
}

TEST_F(TextFieldTest, AHostMayForbidTheTextToChange) {
    site().log().answer("IPropertyNotifySink::OnRequestEdit", S_FALSE);
    EXPECT_EQ(S_OK, c().put_Text(Bstr(L"other").get()));
    EXPECT_EQ(S_OK, c().put_SelText(Bstr(L"other").get()));
    press('X');
    press(VK_DELETE);
    EXPECT_EQ(L"Vellora1", text());
    EXPECT_TRUE(site().log().contains("IPropertyNotifySink::OnRequestEdit"));
    EXPECT_FALSE(site().log().contains("IPropertyNotifySink::OnChanged"));
    site().log().answer("IPropertyNotifySink::OnRequestEdit", S_OK);
    c().put_Text(Bstr(L"other").get());
    EXPECT_EQ(L"other", text());
}

TEST_F(TextFieldTest, ABoundTextIsAskedForBeforeItIsAnnounced) {
    c().put_SelLength(0);
    site().log().take();
    press('X');
    const Lines log = site().log().take();
    const auto place_of = [&](const char* call) {
        return std::find(log.begin(), log.end(), call) - log.begin();
    };
    const auto asked = place_of("IPropertyNotifySink::OnRequestEdit(Text)");
    const auto told = place_of("IPropertyNotifySink::OnChanged(Text)");
    EXPECT_LT(asked, told);
    EXPECT_LT(told, static_cast<std::ptrdiff_t>(log.size()));
}

TEST_F(TextFieldTest, AnyNumberIsAnErrorOrASetting) {
    constexpr long extremes[] = {LONG_MIN, -40000, -1, 0, 1, 7, 32767, 32768, 65535, 65536, LONG_MAX};
    for (const long number : extremes) {
        const bool alignment = number >= 0 && number <= 2;
        EXPECT_EQ(alignment, SUCCEEDED(c().put_Alignment(number))) << number;
        c().put_Alignment(0);
        EXPECT_EQ(number >= 0, SUCCEEDED(c().put_MaxLength(number))) << number;
        c().put_MaxLength(0);
        EXPECT_EQ(number >= 0, SUCCEEDED(c().put_SelStart(number))) << number;
        EXPECT_EQ(number >= 0, SUCCEEDED(c().put_SelLength(number))) << number;
        EXPECT_EQ(S_OK, c().put_LeftMargin(number)) << number;
        EXPECT_EQ(number < 32768 && number >= -32768, SUCCEEDED(c().put_RightMargin(number))) << number;
        LONG kept = 0;
        c().get_RightMargin(&kept);
        EXPECT_EQ(number, kept);
    }
    c().put_LeftMargin(65535);
    c().put_RightMargin(0);
    focus_field();
    press('X');
    EXPECT_EQ(L"x", text());
}

TEST_F(TextFieldTest, TheSelectionStaysWithinTheText) {
    c().put_Text(Bstr(L"abcdef").get());
    EXPECT_EQ(S_OK, c().put_SelStart(100));
    LONG start = -1;
    c().get_SelStart(&start);
    EXPECT_EQ(6, start);
    EXPECT_EQ(S_OK, c().put_SelStart(4));
    EXPECT_EQ(S_OK, c().put_SelLength(LONG_MAX));
    EXPECT_EQ(L"ef", selected_text());
}

TEST_F(TextFieldTest, SelTextTakesLongTextsAndEndsAtAZero) {
    const std::wstring huge(1'000'000, L'x');
    c().put_Text(nullptr);
    EXPECT_EQ(S_OK, c().put_SelText(Bstr(huge).get()));
    EXPECT_EQ(huge.size(), text().size());
    c().put_SelStart(0);
    c().put_SelLength(LONG_MAX);
    EXPECT_EQ(S_OK, c().put_SelText(Bstr(std::wstring_view(L"ab\0cd", 5)).get()));
    EXPECT_EQ(L"ab", text());
    EXPECT_EQ(S_OK, c().put_SelText(nullptr));
    EXPECT_EQ(L"ab", text());
}

} // namespace
} // namespace vellora::test
