// Whose keys are whose: the text field's, the container's and the dialog manager's.
#include "com/support/text_field_test.h"
#include "support/container/atl_host.h"
#include "support/container/library.h"

namespace vellora::test {
namespace {

class TextFieldKeys : public TextFieldTest {
protected:
    /// What the host's message loop hears from the control about a key.
    HRESULT translate(WPARAM code, UINT message = WM_KEYDOWN) {
        MSG key{GetFocus(), message, code, 1, 0, {}};
        return site().as<IOleInPlaceActiveObject>()->TranslateAccelerator(&key);
    }
    DWORD eaten_keys() {
        CONTROLINFO info{};
        info.cb = sizeof info;
        EXPECT_EQ(S_OK, site().as<IOleControl>()->GetControlInfo(&info));
        EXPECT_EQ(0, info.cAccel);
        return info.dwFlags;
    }
    static constexpr DWORD return_and_escape = CTRLINFO_EATS_RETURN | CTRLINFO_EATS_ESCAPE;
};

TEST_F(TextFieldKeys, ArrowsAreItsOwnAndTabIsTheHosts) {
    for (const WPARAM code : {VK_LEFT, VK_RIGHT, VK_HOME, VK_END, VK_UP, VK_DOWN})
        EXPECT_EQ(S_OK, translate(code)) << code;
    EXPECT_FALSE(site().log().contains("IOleControlSite::TranslateAccelerator"));
    for (const WPARAM code : {VK_TAB, VK_RETURN, VK_ESCAPE, VK_F4, int{'A'}}) {
        site().log().take();
        EXPECT_EQ(S_FALSE, translate(code)) << code;
        EXPECT_TRUE(site().log().contains("IOleControlSite::TranslateAccelerator")) << code;
    }
    const Held held(VK_SHIFT);
    EXPECT_EQ(S_FALSE, translate(VK_TAB));
    EXPECT_EQ(S_OK, translate(VK_LEFT));
}

TEST_F(TextFieldKeys, AMnemonicThatAHostSendsMeansTheField) {
    HWND other = make_edit();
    SetFocus(other);
    container_.pump();
    MSG mnemonic{other, WM_SYSCHAR, 'C', 0, 0, {}};
    EXPECT_EQ(S_OK, site().as<IOleControl>()->OnMnemonic(&mnemonic));
    EXPECT_EQ(field(), GetFocus());
}

TEST_F(TextFieldKeys, KeysWithControlOrAltAreTheHostsFirst) {
    const Held held(VK_CONTROL);
    EXPECT_EQ(S_FALSE, translate(VK_DOWN));
    EXPECT_EQ(S_FALSE, translate(VK_LEFT));
    EXPECT_EQ(S_FALSE, translate(VK_DOWN, WM_SYSKEYDOWN));
}

TEST_F(TextFieldKeys, TheContainerKnowsOfThemBeforeAHandlerTakesItsTime) {
    site().log().take();
    bool told = false;
    DWORD eaten = 0;
    site().events().on("DropDown", [&](EventArguments&) {
        told = site().log().contains("IOleControlSite::OnControlInfoChanged");
        eaten = eaten_keys();
    });
    open();
    site().events().on("DropDown", {});
    EXPECT_TRUE(told);
    EXPECT_EQ(return_and_escape, eaten);
}

TEST_F(TextFieldKeys, EnterAndEscapeAreEatenWhileTheListIsOpen) {
    EXPECT_EQ(0U, eaten_keys());
    open();
    EXPECT_EQ(return_and_escape, eaten_keys());
    EXPECT_TRUE(site().log().contains("IOleControlSite::OnControlInfoChanged"));
    site().log().take();
    EXPECT_EQ(S_FALSE, translate(VK_TAB));
    EXPECT_EQ(S_OK, translate(VK_DOWN));
    EXPECT_EQ(S_OK, translate(VK_RETURN));
    container_.pump();
    EXPECT_EQ(L"Apple", text());
    EXPECT_EQ(0U, eaten_keys());
    EXPECT_TRUE(site().log().contains("IOleControlSite::OnControlInfoChanged"));
    open();
    EXPECT_EQ(S_OK, translate(VK_ESCAPE));
    container_.pump();
    EXPECT_FALSE(is_open());
    EXPECT_EQ(0U, eaten_keys());
}

/// A control between two buttons of a dialog, the first of them the default one.
class TextFieldInADialog : public testing::Test {
protected:
    TextFieldInADialog() {
        button(L"default", IDOK, BS_DEFPUSHBUTTON, 80);
        control_ = site_.as<_Vellora>();
        button(L"next", next_id, BS_PUSHBUTTON, 140);
        control_->AddItem(Variant(L"row").get(), -1);
        dialog_.form().watch([this](UINT message, WPARAM wparam, LPARAM) {
            if (message == WM_COMMAND)
                commands_.push_back(std::to_string(LOWORD(wparam)));
        });
        SetFocus(field());
        dialog_.pump();
    }
    void button(const wchar_t* text, int id, DWORD style, int top) {
        CreateWindowExW(0, L"Button", text, WS_CHILD | WS_VISIBLE | WS_TABSTOP | style, 20, top, 80, 24,
                        dialog_.form().window(), reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                        GetModuleHandleW(nullptr), nullptr);
    }
    HWND window() {
        LONG handle = 0;
        control_->get_hWnd(&handle);
        return reinterpret_cast<HWND>(static_cast<LONG_PTR>(handle));
    }
    HWND field() { return text_field(window()); }
    HWND item(int id) { return GetDlgItem(dialog_.form().window(), id); }
    void press(WPARAM code) {
        PostMessageW(GetFocus(), WM_KEYDOWN, code, 1);
        dialog_.pump();
    }
    // A display without a window manager may take a moment's focus change for another program's.
    HWND focus_when_active() {
        if (GetActiveWindow() == nullptr) {
            SetActiveWindow(dialog_.form().window());
            dialog_.pump();
        }
        return GetFocus();
    }
    Lines take_commands() { return std::exchange(commands_, {}); }

    static constexpr int next_id = 101;
    Container dialog_{bare_form(Form::Kind::dialog)};
    Site& site_ = dialog_.add(__uuidof(Vellora));
    ComPtr<_Vellora> control_;
    Lines commands_;
};

TEST_F(TextFieldInADialog, TabGoesOnAndShiftTabBack) {
    HWND before = GetNextDlgTabItem(dialog_.form().window(), field(), TRUE);
    HWND after = GetNextDlgTabItem(dialog_.form().window(), field(), FALSE);
    press(VK_TAB);
    EXPECT_EQ(after, GetFocus());
    SetFocus(field());
    BYTE keys[256];
    GetKeyboardState(keys);
    keys[VK_SHIFT] = 0x80;
    SetKeyboardState(keys);
    press(VK_TAB);
    keys[VK_SHIFT] = 0;
    SetKeyboardState(keys);
    EXPECT_EQ(before, GetFocus());
}

TEST_F(TextFieldInADialog, TabArrivesInTheField) {
    SetFocus(GetNextDlgTabItem(dialog_.form().window(), field(), TRUE));
    press(VK_TAB);
    EXPECT_EQ(field(), GetFocus());
    Bstr selected;
    control_->get_SelText(selected.out());
    EXPECT_EQ(L"Vellora1", selected.text());
}

TEST_F(TextFieldInADialog, ArrowsStayInTheField) {
    press(VK_DOWN);
    EXPECT_EQ(field(), GetFocus());
    Bstr text;
    control_->get_Text(text.out());
    EXPECT_EQ(L"row", text.text());
}

TEST_F(TextFieldInADialog, EnterAndEscapeAreTheDialogsUnlessTheListIsOpen) {
    press(VK_RETURN);
    press(VK_ESCAPE);
    EXPECT_EQ((Lines{"1", "2"}), take_commands());
    for (const WPARAM code : {VK_RETURN, VK_ESCAPE}) {
        ASSERT_EQ(S_OK, control_->ShowList());
        dialog_.pump();
        ASSERT_NE(nullptr, floating_window());
        press(code);
        EXPECT_EQ(nullptr, floating_window());
        EXPECT_EQ(field(), focus_when_active());
        EXPECT_EQ(Lines{}, take_commands());
    }
}

TEST_F(TextFieldInADialog, TabLeavesAnOpenListForTheNextControl) {
    HWND after = GetNextDlgTabItem(dialog_.form().window(), field(), FALSE);
    ASSERT_EQ(S_OK, control_->ShowList());
    dialog_.pump();
    press(VK_TAB);
    EXPECT_EQ(nullptr, floating_window());
    EXPECT_EQ(after, focus_when_active());
}

// This container hands on no keys: its program asks the dialog manager only.
TEST_F(TextFieldKeys, InTheAtlContainerKeysGoTheDialogsWay) {
    Container dialog(bare_form(Form::Kind::dialog));
    const ComPtr<IUnknown> control = Library::instance().create(__uuidof(Vellora));
    ComPtr<_Vellora> vellora;
    ASSERT_EQ(S_OK, control.As(&vellora));
    AtlHost host(dialog.form().window(), {20, 20, 220, 44}, control.Get());
    SetWindowLongW(host.window(), GWL_EXSTYLE, WS_EX_CONTROLPARENT);
    HWND other = CreateWindowExW(0, L"Edit", L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 20, 80, 80, 24,
                                 dialog.form().window(), nullptr, GetModuleHandleW(nullptr), nullptr);
    vellora->AddItem(Variant(L"row").get(), -1);
    const auto press = [&](WPARAM code) {
        PostMessageW(GetFocus(), WM_KEYDOWN, code, 1);
        dialog.pump();
    };
    LONG handle = 0;
    vellora->get_hWnd(&handle);
    HWND window = reinterpret_cast<HWND>(static_cast<LONG_PTR>(handle));
    SetFocus(text_field(window));
    press(VK_DOWN);
    Bstr text;
    vellora->get_Text(text.out());
    EXPECT_EQ(L"row", text.text());
    press(VK_TAB);
    EXPECT_EQ(other, GetFocus());
    press(VK_TAB);
    EXPECT_EQ(text_field(window), GetFocus());
    for (const WPARAM code : {VK_RETURN, VK_ESCAPE}) {
        vellora->ShowList();
        dialog.pump();
        ASSERT_NE(nullptr, floating_window());
        press(code);
        EXPECT_EQ(nullptr, floating_window());
        EXPECT_EQ(text_field(window), GetFocus());
    }
    vellora->ShowList();
    dialog.pump();
    press(VK_TAB);
    EXPECT_EQ(nullptr, floating_window());
    EXPECT_EQ(other, GetFocus());
}

} // namespace
} // namespace vellora::test
