// Hundreds of messages to the field in no order at all, of the keyboard, of input methods, of the clipboard and of
// other programs, while handlers change whatever a host can change: the same ones in every run.
#include "com/support/text_field_test.h"
#include "support/container/clipboard.h"

#include <imm.h>

#include <functional>
#include <random>

namespace vellora::test {
namespace {

constexpr LPARAM release = static_cast<LPARAM>(0xC0000001U);

class TypingWalk : public TextFieldTest {
protected:
    void start(unsigned seed) {
        random_.seed(seed);
        site().events().on_every([this](const std::string&, EventArguments& arguments) {
            if (number(0, 5) == 0 && arguments.count() > 0)
                arguments.set(0, Variant(number(-1, 300)));
            meddle();
        });
    }

    void step() {
        if (number(0, 3) == 0)
            act(members_);
        else
            act(messages_);
        container_.pump();
    }

    void stop() { site().events().on_every({}); }

    void expect_order() {
        ASSERT_EQ(S_OK, c().put_Alignment(number(0, 2)));
        LONG start = -1;
        LONG length = -1;
        EXPECT_EQ(S_OK, c().get_SelStart(&start));
        EXPECT_EQ(S_OK, c().get_SelLength(&length));
        const std::wstring whole = text();
        EXPECT_GE(start, 0);
        EXPECT_GE(length, 0);
        EXPECT_LE(static_cast<std::size_t>(start + length), whole.size());
        EXPECT_EQ(static_cast<std::size_t>(GetWindowTextLengthW(field())), whole.size());
        EXPECT_LE(floating_windows().size(), 1U);
    }

    // With its settings put back it is as good as new.
    void expect_to_work() {
        c().HideList();
        c().ClearAll();
        c().put_Columns(1);
        c().put_TextColumn(1);
        for (const wchar_t* row : {L"Apple", L"apricot", L"Banana"})
            ASSERT_EQ(S_OK, c().AddItem(Variant(row).get(), -1));
        ASSERT_EQ(S_OK, c().put_Alignment(0));
        ASSERT_EQ(S_OK, c().put_Enabled(VARIANT_TRUE));
        ASSERT_EQ(S_OK, c().put_Locked(VARIANT_FALSE));
        ASSERT_EQ(S_OK, c().put_MaxLength(0));
        ASSERT_EQ(S_OK, c().put_AutoComplete(VARIANT_TRUE));
        ASSERT_EQ(S_OK, c().put_DropDownHeight(8));
        SendMessageW(field(), EM_SETREADONLY, FALSE, 0);
        SetFocus(make_edit());
        container_.pump();
        focus_field();
        press('X'); // what a deletion before left to be skipped
        press('Y');
        c().put_ListIndex(-1);
        c().put_Text(nullptr);
        events();
        press('A');
        EXPECT_TRUE(same_lines(
            {"KeyDown(I2 65, I2 0)", "KeyPress(I2 97)", "Click()", "Change()", "Change()", "KeyUp(I2 65, I2 0)"},
            events()));
        EXPECT_EQ(L"Apple", text());
        EXPECT_EQ(L"pple", selected_text());
        open();
        EXPECT_TRUE(is_open());
        c().HideList();
    }

    int number(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random_); }
    bool ended_ = false;
    bool may_end_ = false;

private:
    LRESULT send(UINT message, WPARAM wparam = 0, LPARAM lparam = 0) {
        return SendMessageW(field(), message, wparam, lparam);
    }
    std::wstring some_text() {
        constexpr const wchar_t* texts[] = {L"",
                                            L"a",
                                            L"Apple",
                                            L"APR",
                                            L"\xD83D\xDE00 x",
                                            L"\xDE00",
                                            L"\x05D0",
                                            L"b\xD83D",
                                            L"long long long text",
                                            L"a\r\nb",
                                            L"Banana"};
        return texts[number(0, static_cast<int>(std::size(texts)) - 1)];
    }
    WPARAM some_unit() {
        constexpr WPARAM units[] = {'a', 'p', 'r', 'b',    'x',    ' ',    8,       1, 13,
                                    9,   27,  127, 0xD83D, 0xDE00, 0x4F60, 0x10061, 26};
        return units[number(0, static_cast<int>(std::size(units)) - 1)];
    }
    WPARAM some_key() {
        constexpr WPARAM keys[] = {'A', 'P', 'B', 8, 46, 35, 36, 37, 38, 39, 40, 0xE5, 0xE7, 13, 45};
        return keys[number(0, static_cast<int>(std::size(keys)) - 1)];
    }
    VARIANT_BOOL some_flag() { return number(0, 1) == 1 ? VARIANT_TRUE : VARIANT_FALSE; }

    void type() {
        const WPARAM key = some_key();
        send(WM_KEYDOWN, key, 1);
        if (!ended_)
            send(WM_CHAR, some_unit(), 1);
        if (!ended_ && number(0, 3) != 0)
            send(WM_KEYUP, key, release);
    }

    void end() {
        ended_ = true;
        if (number(0, 1) == 0)
            site().destroy();
        else
            container_.destroy_form();
    }

    void meddle() {
        if (ended_ || depth_ >= 3 || number(0, 3) != 0)
            return;
        ++depth_;
        if (may_end_ && number(0, 20) == 0)
            end();
        else
            act(members_);
        --depth_;
    }

    void act(const std::vector<std::function<void()>>& choices) {
        if (!ended_)
            choices[static_cast<std::size_t>(number(0, static_cast<int>(choices.size()) - 1))]();
    }

    std::mt19937 random_;
    int depth_ = 0;
    const std::vector<std::function<void()>> members_{
        [this] { c().put_Text(Bstr(some_text()).get()); },
        [this] { c().put_SelText(Bstr(some_text()).get()); },
        [this] { c().put_SelStart(number(-1, 10)); },
        [this] { c().put_SelLength(number(-1, 10)); },
        [this] { c().put_Alignment(number(0, 8) == 0 ? 7 : number(0, 2)); },
        [this] { c().put_MaxLength(number(-1, 8)); },
        [this] { c().put_Locked(some_flag()); },
        [this] { c().put_Enabled(some_flag()); },
        [this] { c().put_AutoComplete(some_flag()); },
        [this] { c().put_LeftMargin(number(-1, 70000)); },
        [this] { c().put_RightMargin(number(-40000, 40000)); },
        [this] { put_font(); },
        [this] { c().put_ListIndex(number(-2, 4)); },
        [this] { c().put_TextColumn(static_cast<short>(number(0, 3))); },
        [this] { c().put_Columns(static_cast<short>(number(0, 3))); },
        [this] { c().Clear(); },
        [this] { c().ClearAll(); },
        [this] { c().AddItem(Variant(some_text()).get(), -1); },
        [this] { c().put_Sorted(some_flag()); },
        [this] { c().put_BackColor(static_cast<OLE_COLOR>(number(-1, 0xFFFFFF))); },
        [this] { c().put_DropDownHeight(static_cast<float>(number(0, 9))); },
        [this] { c().ShowList(); },
        [this] { c().HideList(); },
        [this] { SetFocus(container_.form().window()); },
        [this] { SetFocus(field()); },
        [this] {
            site().move({20, 20, 20 + number(0, 300), 20 + number(0, 40)});
        },
        [this] { site().ui_deactivate(); },
        [this] { EnableWindow(field(), number(0, 1)); },
    };
    const std::vector<std::function<void()>> messages_{
        [this] { type(); },
        [this] { type(); },
        [this] { type(); },
        [this] { send(WM_CHAR, some_unit(), 1); },
        [this] { send(WM_KEYDOWN, some_key(), 1); },
        [this] { send(WM_KEYUP, some_key(), release); },
        [this] { send(WM_UNICHAR, static_cast<WPARAM>(number(0, 0x120000)), 1); },
        [this] { send(WM_IME_STARTCOMPOSITION); },
        [this] { send(WM_IME_COMPOSITION, 0, number(0, 1) == 0 ? GCS_COMPSTR : GCS_RESULTSTR); },
        [this] { send(WM_IME_ENDCOMPOSITION); },
        [this] { send(WM_IME_CHAR, some_unit(), 1); },
        [this] { set_clipboard_text(some_text()); },
        [this] { send(WM_COPY); },
        [this] { send(WM_PASTE); },
        [this] { send(WM_CUT); },
        [this] { send(WM_CLEAR); },
        [this] { send(number(0, 1) == 0 ? UINT{WM_UNDO} : UINT{EM_UNDO}); },
        [this] { send(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(some_text().c_str())); },
        [this] { send(EM_SETSEL, static_cast<WPARAM>(number(-1, 10)), number(-1, 10)); },
        [this] { send(EM_LIMITTEXT, static_cast<WPARAM>(number(0, 10))); },
        [this] { send(EM_SETMARGINS, static_cast<WPARAM>(number(0, 3)), number(0, 0x7FFFFFFF)); },
        [this] { send(EM_SETREADONLY, static_cast<WPARAM>(number(0, 1))); },
        [this] { send(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(some_text().c_str())); },
        [this] { send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(number(-5, 300), 5)); },
        [this] { send(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(number(-5, 300), 5)); },
        [this] { send(WM_LBUTTONUP, 0, MAKELPARAM(number(-5, 300), 5)); },
        [this] { send(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(number(-5, 300), 5)); },
        [this] { press(VK_F4); },
        [this] { SetFocus(container_.form().window()); },
        [this] { SetFocus(field()); },
    };

    void put_font() {
        ComPtr<IFontDisp> font;
        make_font(number(0, 1) == 0 ? L"Tahoma" : L"Marlett", number(1, 20)).As(&font);
        c().putref_Font(font.Get());
    }
};

TEST_F(TypingWalk, LeavesAControlInOrder) {
    for (unsigned seed = 1; seed <= 4; ++seed) {
        SCOPED_TRACE(seed);
        start(seed);
        for (int count = 0; count < 200 && !HasFailure(); ++count) {
            step();
            expect_order();
        }
        stop();
        expect_to_work();
        ASSERT_FALSE(HasFailure());
    }
}

class TypingWalkToTheEnd : public TypingWalk, public testing::WithParamInterface<unsigned> {};

TEST_P(TypingWalkToTheEnd, MayEndInAnyHandler) {
    may_end_ = true;
    start(GetParam());
    for (int count = 0; count < 2000 && !ended_; ++count)
        step();
    EXPECT_TRUE(ended_);
    EXPECT_TRUE(floating_windows().empty());
    Container later(bare_form());
    Site& fresh = later.add(__uuidof(Vellora));
    vellora(fresh)->ShowList();
    later.pump();
    EXPECT_EQ(1U, floating_windows().size());
    vellora(fresh)->HideList();
}

INSTANTIATE_TEST_SUITE_P(Seed, TypingWalkToTheEnd, testing::Range(105U, 120U));

} // namespace
} // namespace vellora::test
