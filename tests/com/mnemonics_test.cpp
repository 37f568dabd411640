// Letters with Alt: the control announces none, so they are the form's, and the label before it leads to its field.
#include "com/support/text_field_test.h"
#include "support/container/atl_host.h"
#include "support/container/library.h"

namespace vellora::test {
namespace {

/// What an OLE form does with a key: it goes to the control that announces it, else to the one behind the label with
/// that letter, here "&Colour".
class FormsMnemonics : public TextFieldTest {
protected:
    void SetUp() override {
        TextFieldTest::SetUp();
        other_ = make_edit();
        SetFocus(other_);
        container_.pump();
    }
    void press_alt(wchar_t letter) {
        MSG key{GetFocus(), WM_SYSCHAR, static_cast<WPARAM>(letter), context_code, 0, {}};
        CONTROLINFO info{};
        info.cb = sizeof info;
        ASSERT_EQ(S_OK, site().as<IOleControl>()->GetControlInfo(&info));
        WORD command = 0;
        if (IsAccelerator(info.hAccel, info.cAccel, &key, &command))
            site().as<IOleControl>()->OnMnemonic(&key);
        else if (letter == L'c')
            site().ui_activate();
    }

    static constexpr LPARAM context_code = 1 << 29;
    HWND other_ = nullptr;
};

TEST_F(FormsMnemonics, TheLabelsLetterBringsTheFocusAndSelectsTheText) {
    press_alt(L'c');
    EXPECT_EQ(field(), GetFocus());
    EXPECT_EQ(L"Vellora1", selected_text());
    EXPECT_TRUE(same_lines({}, events()));
}

TEST_F(FormsMnemonics, NoLetterIsTheControlsOwn) {
    c().put_Text(Bstr(L"R&D").get());
    for (const wchar_t letter : {L'd', L'r', L'5', L'6'})
        press_alt(letter);
    EXPECT_EQ(other_, GetFocus());
}

TEST_F(FormsMnemonics, TheFieldLeavesThemToTheForm) {
    focus_field();
    for (const UINT message : {WM_SYSKEYDOWN, WM_SYSCHAR, WM_SYSKEYUP}) {
        MSG key{field(), message, 'C', context_code, 0, {}};
        EXPECT_EQ(S_FALSE, site().as<IOleInPlaceActiveObject>()->TranslateAccelerator(&key)) << message;
    }
}

TEST_F(FormsMnemonics, OneThatIsSentToADisabledControlIsNothing) {
    c().put_Enabled(VARIANT_FALSE);
    MSG key{other_, WM_SYSCHAR, 'c', context_code, 0, {}};
    EXPECT_EQ(S_OK, site().as<IOleControl>()->OnMnemonic(&key));
    EXPECT_EQ(other_, GetFocus());
}

TEST_F(FormsMnemonics, OneThatIsSentToAControlThatIsNotActiveTakesNoFocusOffTheForm) {
    ASSERT_EQ(S_OK, site().deactivate());
    SetFocus(other_);
    container_.pump();
    MSG key{other_, WM_SYSCHAR, 'c', context_code, 0, {}};
    site().as<IOleControl>()->OnMnemonic(&key);
    EXPECT_EQ(other_, GetFocus());
}

TEST_F(FormsMnemonics, OneThatIsSentToAControlWithItsListOpenLeavesIt) {
    open();
    MSG key{list(), WM_SYSCHAR, 'c', context_code, 0, {}};
    EXPECT_EQ(S_OK, site().as<IOleControl>()->OnMnemonic(&key));
    container_.pump();
    EXPECT_FALSE(is_open());
    EXPECT_EQ(field(), GetFocus());
}

/// A dialog, whose manager finds labels and buttons by itself.
class DialogMnemonics : public testing::Test {
protected:
    HWND child(const wchar_t* of_class, const wchar_t* text, int id, DWORD style, int top) {
        return CreateWindowExW(0, of_class, text, WS_CHILD | WS_VISIBLE | style, 20, top, 80, 24, form(),
                               reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr), nullptr);
    }
    HWND label() { return child(L"Static", L"&Colour", -1, 0, 50); }
    void buttons() {
        child(L"Button", L"&Next", next_id, WS_TABSTOP, 140);
        dialog_.form().watch([this](UINT message, WPARAM wparam, LPARAM) {
            if (message == WM_COMMAND)
                commands_.push_back(LOWORD(wparam));
        });
    }
    void use(IUnknown* control) {
        control->QueryInterface(IID_PPV_ARGS(&control_));
        LONG handle = 0;
        control_->get_hWnd(&handle);
        window_ = reinterpret_cast<HWND>(static_cast<LONG_PTR>(handle));
    }
    HWND form() { return dialog_.form().window(); }
    HWND field() const { return text_field(window_); }
    void focus(HWND window) {
        SetFocus(window);
        dialog_.pump();
        commands_.clear();
    }
    void press_alt(wchar_t letter) {
        PostMessageW(GetFocus(), WM_SYSCHAR, static_cast<WPARAM>(letter), 1 << 29);
        dialog_.pump();
    }
    void expect_letters_to_go_their_way() {
        focus(GetDlgItem(form(), next_id));
        press_alt(L'c');
        EXPECT_EQ(field(), GetFocus());
        Bstr selected;
        control_->get_SelText(selected.out());
        EXPECT_EQ(L"R&D", selected.text());
        press_alt(L'n');
        EXPECT_EQ(std::vector<WORD>{next_id}, commands_);
        focus(GetDlgItem(form(), next_id));
        press_alt(L'd');
        EXPECT_EQ(GetDlgItem(form(), next_id), GetFocus());
    }

    static constexpr WORD next_id = 101;
    Container dialog_{bare_form(Form::Kind::dialog)};
    ComPtr<_Vellora> control_;
    HWND window_ = nullptr;
    std::vector<WORD> commands_;
};

TEST_F(DialogMnemonics, TheLabelLeadsToTheFieldAndTheTextHasNone) {
    HWND before = label();
    use(dialog_.add(__uuidof(Vellora)).control());
    // A window that is moved into another comes first there, until its host puts it in its place.
    SetWindowPos(window_, before, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    buttons();
    control_->put_Text(Bstr(L"R&D").get());
    expect_letters_to_go_their_way();
}

// Inside a dialog it is the dialog manager that looks for the letter, whatever container the control stands in.
TEST_F(DialogMnemonics, TheLabelLeadsThroughTheAtlContainerToo) {
    label();
    const ComPtr<IUnknown> control = Library::instance().create(__uuidof(Vellora));
    use(control.Get());
    AtlHost host(form(), {20, 80, 220, 104}, control.Get());
    SetWindowLongW(host.window(), GWL_EXSTYLE, WS_EX_CONTROLPARENT);
    buttons();
    control_->put_Text(Bstr(L"R&D").get());
    expect_letters_to_go_their_way();
}

} // namespace
} // namespace vellora::test
