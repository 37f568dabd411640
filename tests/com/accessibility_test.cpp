// The control as assistive software finds it through its windows.
#include "com/support/open_list_test.h"
#include "support/container/text.h"

#include <algorithm>
#include <commctrl.h>
#include <oleacc.h>
#include <vector>

namespace vellora::test {
namespace {

VARIANT self() {
    VARIANT child{};
    child.vt = VT_I4;
    child.lVal = CHILDID_SELF;
    return child;
}

std::wstring taken(BSTR text) {
    const std::wstring copy(text != nullptr ? text : L"");
    SysFreeString(text);
    return copy;
}

class AccessibilityTest : public OpenListTest {
protected:
    void SetUp() override {
        OpenListTest::SetUp();
        fill(3);
        combo_ = object_of(control());
    }

    static ComPtr<IAccessible> object_of(HWND window) {
        ComPtr<IAccessible> object;
        EXPECT_EQ(S_OK, AccessibleObjectFromWindow(window, OBJID_CLIENT, IID_IAccessible,
                                                   reinterpret_cast<void**>(object.GetAddressOf())));
        return object;
    }
    std::wstring name(IAccessible& object) {
        BSTR text = nullptr;
        EXPECT_EQ(S_OK, object.get_accName(self(), &text));
        return taken(text);
    }
    std::wstring value() {
        BSTR text = nullptr;
        EXPECT_EQ(S_OK, combo_->get_accValue(self(), &text));
        return taken(text);
    }
    std::wstring action() {
        BSTR text = nullptr;
        EXPECT_EQ(S_OK, combo_->get_accDefaultAction(self(), &text));
        return taken(text);
    }
    long state() {
        VARIANT answer{};
        EXPECT_EQ(S_OK, combo_->get_accState(self(), &answer));
        return answer.lVal;
    }

    ComPtr<IAccessible> combo_;
};

TEST_F(AccessibilityTest, IsAComboBox) {
    VARIANT role{};
    ASSERT_EQ(S_OK, combo_->get_accRole(self(), &role));
    EXPECT_EQ(VT_I4, role.vt);
    EXPECT_EQ(ROLE_SYSTEM_COMBOBOX, role.lVal);
}

TEST_F(AccessibilityTest, GoesByItsNameOnTheFormWithoutALabel) {
    EXPECT_EQ(L"Vellora1", name(*combo_.Get()));
}

TEST_F(AccessibilityTest, GoesByTheLabelBeforeIt) {
    HWND label = CreateWindowExW(0, WC_STATICW, L"&Country", WS_CHILD | WS_VISIBLE, 0, 0, 60, 16, GetParent(control()),
                                 nullptr, nullptr, nullptr);
    SetWindowPos(control(), label, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    EXPECT_EQ(L"Country", name(*combo_.Get()));
    const ComPtr<IAccessible> field = object_of(text_field(control()));
    EXPECT_EQ(L"Country", name(*field.Get()));
}

TEST_F(AccessibilityTest, HasTheTextAsItsValue) {
    c().put_Text(Bstr(L"some text").get());
    EXPECT_EQ(L"some text", value());
    EXPECT_EQ(S_OK, combo_->put_accValue(self(), Bstr(L"dictated").get()));
    EXPECT_EQ(L"dictated", text());
}

TEST_F(AccessibilityTest, ExpandsAndCollapses) {
    EXPECT_TRUE(state() & STATE_SYSTEM_COLLAPSED);
    EXPECT_EQ(L"Open", action());
    ASSERT_EQ(S_OK, combo_->accDoDefaultAction(self()));
    container_.pump();
    EXPECT_TRUE(is_open());
    EXPECT_TRUE(state() & STATE_SYSTEM_EXPANDED);
    EXPECT_EQ(L"Close", action());
    ASSERT_EQ(S_OK, combo_->accDoDefaultAction(self()));
    container_.pump();
    EXPECT_FALSE(is_open());
}

TEST_F(AccessibilityTest, NamesItsWindow) {
    ComPtr<IOleWindow> window;
    ASSERT_EQ(S_OK, combo_.As(&window));
    HWND handle = nullptr;
    EXPECT_EQ(S_OK, window->GetWindow(&handle));
    EXPECT_EQ(control(), handle);
    EXPECT_EQ(S_OK, WindowFromAccessibleObject(combo_.Get(), &handle));
    EXPECT_EQ(control(), handle);
    ComPtr<IAccessible> back;
    ASSERT_EQ(S_OK, window.As(&back));
    EXPECT_EQ(L"Vellora1", name(*back.Get()));
}

TEST_F(AccessibilityTest, HasTheFieldAmongItsChildren) {
    long count = 0;
    ASSERT_EQ(S_OK, combo_->get_accChildCount(&count));
    std::vector<VARIANT> children(static_cast<std::size_t>(count));
    long found = 0;
    ASSERT_EQ(S_OK, AccessibleChildren(combo_.Get(), 0, count, children.data(), &found));
    EXPECT_EQ(count, found);
    std::vector<HWND> windows;
    for (VARIANT& child : children) {
        HWND window = nullptr;
        ComPtr<IAccessible> object;
        if (child.vt == VT_DISPATCH && SUCCEEDED(child.pdispVal->QueryInterface(object.GetAddressOf())))
            WindowFromAccessibleObject(object.Get(), &window);
        windows.push_back(window);
        VariantClear(&child);
    }
    EXPECT_NE(windows.end(), std::find(windows.begin(), windows.end(), text_field(control())));
}

TEST_F(AccessibilityTest, AnswersForItsChildrenOneByOneToo) {
    ComPtr<IEnumVARIANT> children;
    ASSERT_EQ(S_OK, combo_.As(&children));
    long count = 0;
    combo_->get_accChildCount(&count);
    ASSERT_GE(count, 2);
    EXPECT_EQ(S_OK, children->Reset());
    EXPECT_EQ(S_OK, children->Skip(static_cast<ULONG>(count - 1)));
    VARIANT child{};
    ULONG fetched = 0;
    EXPECT_EQ(S_OK, children->Next(1, &child, &fetched));
    EXPECT_EQ(1U, fetched);
    VariantClear(&child);
    EXPECT_EQ(S_FALSE, children->Next(1, &child, &fetched));
    EXPECT_EQ(S_OK, children->Reset());
    EXPECT_EQ(S_OK, children->Next(1, &child, &fetched));
    VariantClear(&child);
}

TEST_F(AccessibilityTest, RefusesWhatAUserCouldNotDo) {
    c().put_Enabled(VARIANT_FALSE);
    EXPECT_TRUE(state() & STATE_SYSTEM_UNAVAILABLE);
    EXPECT_EQ(E_ACCESSDENIED, combo_->accDoDefaultAction(self()));
    EXPECT_FALSE(is_open());
}

TEST_F(AccessibilityTest, AnswersNothingOnceTheControlIsGone) {
    Site& other = place(L"Vellora2", {20, 100, 220, 124});
    combo_ = object_of(window_of(other));
    EXPECT_EQ(L"Vellora2", name(*combo_.Get()));
    other.destroy();
    BSTR text = nullptr;
    EXPECT_EQ(CO_E_OBJNOTCONNECTED, combo_->get_accName(self(), &text));
    EXPECT_EQ(CO_E_OBJNOTCONNECTED, combo_->get_accValue(self(), &text));
    EXPECT_EQ(CO_E_OBJNOTCONNECTED, combo_->put_accValue(self(), nullptr));
    EXPECT_EQ(CO_E_OBJNOTCONNECTED, combo_->accDoDefaultAction(self()));
}

} // namespace
} // namespace vellora::test
