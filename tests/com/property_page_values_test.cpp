// Values on the property pages of the real library: as they are shown, as they are entered, and what is refused.
#include "com/support/property_page_test.h"

namespace vellora::test {
namespace {

TEST_F(PropertyPageTest, ColoursAreWrittenAsFormDesignersWriteThem) {
    Site& site = design();
    open(L"Looks", {&site});
    EXPECT_EQ(L"&H80000005&", text_of(box(L"BackColor")));
    type(L"BackColor", L"&H00C0FFC0&");
    type(L"ForeColor", L"255");
    EXPECT_EQ(S_OK, page_->Apply());
    OLE_COLOR color = 0;
    vellora(site)->get_BackColor(&color);
    EXPECT_EQ(0x00C0FFC0U, color);
    vellora(site)->get_ForeColor(&color);
    EXPECT_EQ(255U, color);
}

TEST_F(PropertyPageTest, SaysWhatIsWrongWithAValueAndGoesThere) {
    Site& site = design();
    open(L"Columns", {&site});
    type(L"Columns", L"51");
    tick(L"HideColumnHeaders");
    std::vector<std::wstring> said;
    const BoxWatcher watcher([&](HWND complaint) {
        for (HWND child = GetWindow(complaint, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
            if (const std::wstring text = text_of(child); text.find(L": ") != std::wstring::npos)
                said.push_back(text);
        press_ok(complaint);
    });
    EXPECT_EQ(E_FAIL, page_->Apply());
    EXPECT_EQ((std::vector<std::wstring>{
                  L"Columns: Invalid Columns Value. Value must be between 1 and 50"}),
              said);
    EXPECT_EQ(S_OK, page_->IsPageDirty());
    EXPECT_EQ(box(L"Columns"), GetFocus());
    EXPECT_EQ(L"51", text_of(box(L"Columns")));
    type(L"Columns", L"50");
    EXPECT_EQ(S_OK, page_->Apply());
    VARIANT_BOOL hidden = VARIANT_FALSE;
    vellora(site)->get_HideColumnHeaders(&hidden);
    EXPECT_EQ(VARIANT_TRUE, hidden);
}

TEST_F(PropertyPageTest, LettersForANumberAreATypeMismatch) {
    open(L"Field", {&design()});
    type(L"MaxLength", L"many");
    std::wstring said;
    const BoxWatcher watcher([&](HWND complaint) {
        for (HWND child = GetWindow(complaint, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
            if (const std::wstring text = text_of(child); text.find(L": ") != std::wstring::npos)
                said = text;
        press_ok(complaint);
    });
    EXPECT_EQ(E_FAIL, page_->Apply());
    EXPECT_EQ(L"MaxLength: Type mismatch", said);
}

/// Every page by its title.
class EveryPropertyPageTest : public PropertyPageTest, public testing::WithParamInterface<const wchar_t*> {
protected:
    /// Gives the box the value it has already.
    void enter_again(HWND box) {
        wchar_t name[16] = {};
        GetClassNameW(box, name, 16);
        if (std::wstring(name) == L"Edit") {
            SetWindowTextW(box, text_of(box).c_str());
        } else if (std::wstring(name) == L"ComboBox") {
            notify(box, CBN_SELCHANGE);
        } else if (text_of(box) != L"...") {
            SendMessageW(box, BM_CLICK, 0, 0);
            SendMessageW(box, BM_CLICK, 0, 0);
        }
    }
};

TEST_P(EveryPropertyPageTest, TakesEachValueItShows) {
    Site& site = design();
    open(GetParam(), {&site});
    std::vector<std::wstring> shown;
    for (HWND child = GetWindow(dialog_, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        shown.push_back(text_of(child));
        if ((GetWindowLongPtrW(child, GWL_STYLE) & WS_TABSTOP) != 0)
            enter_again(child);
    }
    EXPECT_EQ(S_OK, page_->IsPageDirty());
    EXPECT_EQ(S_OK, page_->Apply());
    IUnknown* object = site.as<IDispatch>().Get();
    EXPECT_EQ(S_OK, page_->SetObjects(1, &object));
    for (HWND child = GetWindow(dialog_, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        EXPECT_EQ(shown.front(), text_of(child));
        shown.erase(shown.begin());
    }
}

INSTANTIATE_TEST_SUITE_P(OfThe, EveryPropertyPageTest, testing::Values(L"Field", L"List", L"Columns", L"Looks"),
                         [](const auto& title) { return utf8(title.param); });

TEST_F(PropertyPageTest, WhatOnlyBeginsLikeAColourIsNone) {
    Site& site = design();
    open(L"Looks", {&site});
    type(L"ForeColor", L"&H8000000F");
    ASSERT_EQ(S_OK, page_->Apply());
    for (const wchar_t* rubbish : {L"&H&", L"&H-1&", L"&H 1&", L"&H12&3"}) {
        type(L"ForeColor", rubbish);
        const BoxWatcher watcher(press_ok);
        EXPECT_EQ(E_FAIL, page_->Apply()) << utf8(rubbish);
    }
    OLE_COLOR color = 0;
    vellora(site)->get_ForeColor(&color);
    EXPECT_EQ(0x8000000FU, color);
}

} // namespace
} // namespace vellora::test
