// The property pages of the real library, in a property window of the test's own and in the platform's.
#include "com/support/property_page_test.h"

namespace vellora::test {
namespace {

TEST_F(PropertyPageTest, ThereIsOneForEachSubject) {
    std::vector<std::wstring> titles;
    for (const CLSID& id : pages_of(design()))
        titles.push_back(title_of(make_page(id).Get()));
    EXPECT_EQ((std::vector<std::wstring>{L"Field", L"List", L"Columns", L"Looks"}), titles);
}

TEST_F(PropertyPageTest, EveryValueOnItIsThatOfTheControl) {
    Site& site = design();
    vellora(site)->put_MaxLength(17);
    vellora(site)->put_Locked(VARIANT_TRUE);
    open(L"Field", {&site});
    EXPECT_EQ(L"17", text_of(box(L"MaxLength")));
    EXPECT_EQ(L"Vellora1", text_of(box(L"Text")));
    EXPECT_EQ(static_cast<LRESULT>(BST_CHECKED), SendMessageW(box(L"Locked"), BM_GETCHECK, 0, 0));
    EXPECT_EQ(static_cast<LRESULT>(BST_UNCHECKED), SendMessageW(box(L"AutoComplete"), BM_GETCHECK, 0, 0));
    EXPECT_EQ(S_FALSE, page_->IsPageDirty());
    EXPECT_EQ(0, page_site_->changes);
}

TEST_F(PropertyPageTest, AChangeWaitsUntilItIsApplied) {
    Site& site = design();
    open(L"Field", {&site});
    type(L"MaxLength", L"5");
    tick(L"AutoComplete");
    EXPECT_EQ(2, page_site_->changes);
    EXPECT_EQ(S_OK, page_->IsPageDirty());
    long length = -1;
    vellora(site)->get_MaxLength(&length);
    EXPECT_EQ(0, length);
    EXPECT_EQ(S_OK, page_->Apply());
    EXPECT_EQ(S_FALSE, page_->IsPageDirty());
    vellora(site)->get_MaxLength(&length);
    EXPECT_EQ(5, length);
    VARIANT_BOOL completes = VARIANT_FALSE;
    vellora(site)->get_AutoComplete(&completes);
    EXPECT_EQ(VARIANT_TRUE, completes);
}

TEST_F(PropertyPageTest, GoesToAllSelectedControls) {
    Site& first = design(L"Vellora1");
    Site& second = design(L"Vellora2");
    open(L"List", {&first, &second});
    choose(L"SortOrder", 1);
    EXPECT_EQ(S_OK, page_->Apply());
    for (Site* site : {&first, &second}) {
        vlSortOrder order = vlAscending;
        vellora(*site)->get_SortOrder(&order);
        EXPECT_EQ(vlDescending, order);
    }
}

TEST_F(PropertyPageTest, AnEnumerationOffersItsNames) {
    open(L"List", {&design()});
    wchar_t text[64] = {};
    SendMessageW(box(L"DropDownAlignment"), CB_GETLBTEXT, 2, reinterpret_cast<LPARAM>(text));
    EXPECT_EQ(L"2 - vlDDCenter", std::wstring(text));
}

TEST_F(PropertyPageTest, CaptionsAreGivenColumnByColumn) {
    Site& site = design();
    open(L"Columns", {&site});
    type(L"Columns", L"3");
    EXPECT_EQ(3, SendMessageW(box(L"Column"), CB_GETCOUNT, 0, 0));
    type(L"ColumnHeader", L"Code");
    choose(L"Column", 2);
    EXPECT_EQ(L"", text_of(box(L"ColumnHeader")));
    type(L"ColumnHeader", L"Name");
    choose(L"Column", 0);
    EXPECT_EQ(L"Code", text_of(box(L"ColumnHeader")));
    EXPECT_EQ(S_OK, page_->Apply());
    short columns = 0;
    vellora(site)->get_Columns(&columns);
    EXPECT_EQ(3, columns);
    Bstr header;
    vellora(site)->get_ColumnHeader(3, header.out());
    EXPECT_EQ(L"Name", header.text());
    vellora(site)->get_ColumnHeader(1, header.out());
    EXPECT_EQ(L"Code", header.text());
}

TEST_F(PropertyPageTest, ChangesOfColumnsThatAreTakenAwayGoWithThem) {
    Site& site = design();
    open(L"Columns", {&site});
    type(L"Columns", L"2");
    choose(L"Column", 1);
    type(L"ColumnHeader", L"gone");
    type(L"Columns", L"1");
    EXPECT_EQ(S_OK, page_->Apply());
    short columns = 0;
    vellora(site)->get_Columns(&columns);
    EXPECT_EQ(1, columns);
}

TEST_F(PropertyPageTest, ChangesOutlastTheTypingOfAnotherNumberOfColumns) {
    Site& site = design();
    open(L"Columns", {&site});
    type(L"Columns", L"3");
    choose(L"Column", 2);
    type(L"ColumnHeader", L"Name");
    for (const wchar_t* typed : {L"", L"1", L"12"})
        type(L"Columns", typed);
    EXPECT_EQ(S_OK, page_->Apply());
    Bstr header;
    EXPECT_EQ(S_OK, vellora(site)->get_ColumnHeader(3, header.out()));
    EXPECT_EQ(L"Name", header.text());
}

TEST_F(PropertyPageTest, OffersNoMoreColumnsThanThereCanBe) {
    open(L"Columns", {&design()});
    type(L"Columns", L"32767");
    EXPECT_EQ(50, SendMessageW(box(L"Column"), CB_GETCOUNT, 0, 0));
    const BoxWatcher watcher(press_ok);
    EXPECT_EQ(E_FAIL, page_->Apply());
}

TEST_F(PropertyPageTest, WhereNoColumnIsChosenNoneIsChanged) {
    Site& site = design();
    open(L"Columns", {&site});
    type(L"Columns", L"");
    type(L"ColumnHeader", L"nowhere");
    type(L"Columns", L"2");
    EXPECT_EQ(S_OK, page_->Apply());
    Bstr header;
    EXPECT_EQ(S_OK, vellora(site)->get_ColumnHeader(1, header.out()));
    EXPECT_EQ(L"", header.text());
}

TEST_F(PropertyPageTest, TabLeavesItBehindTheLastFieldOnly) {
    open(L"Field", {&design()});
    SetFocus(box(L"Text"));
    MSG tab = {GetFocus(), WM_KEYDOWN, VK_TAB, 1, 0, {}};
    EXPECT_EQ(S_OK, page_->TranslateAccelerator(&tab));
    EXPECT_EQ(0, page_site_->keys);
    EXPECT_EQ(box(L"Alignment"), GetFocus());
    tab.hwnd = box(L"AutoHeight");
    SetFocus(tab.hwnd);
    EXPECT_EQ(S_OK, page_->TranslateAccelerator(&tab));
    EXPECT_EQ(1, page_site_->keys);
    tab.hwnd = container_.form().window();
    EXPECT_EQ(S_FALSE, page_->TranslateAccelerator(&tab));
}

TEST_F(PropertyPageTest, EnterAndEscAreForThePropertyWindow) {
    open(L"List", {&design()});
    const auto press = [this](WPARAM key) {
        MSG message = {GetFocus(), WM_KEYDOWN, key, 1, 0, {}};
        return page_->TranslateAccelerator(&message);
    };
    const HWND combo = box(L"SortOrder");
    SetFocus(combo);
    EXPECT_EQ(S_OK, press(VK_RETURN));
    EXPECT_EQ(S_OK, press(VK_ESCAPE));
    EXPECT_EQ(2, page_site_->keys);
    SendMessageW(combo, CB_SHOWDROPDOWN, TRUE, 0);
    EXPECT_EQ(S_OK, press(VK_ESCAPE));
    EXPECT_EQ(FALSE, SendMessageW(combo, CB_GETDROPPEDSTATE, 0, 0));
    EXPECT_EQ(2, page_site_->keys);
    page_->SetPageSite(nullptr);
    EXPECT_EQ(S_FALSE, press(VK_RETURN));
}

TEST_F(PropertyPageTest, EditingAPropertyPutsTheFocusThere) {
    open(L"Columns", {&design()});
    EXPECT_EQ(S_OK, page_->EditProperty(dispatch_id(design().as<IDispatch>().Get(), L"ColumnHeader")));
    EXPECT_EQ(box(L"ColumnHeader"), GetFocus());
    EXPECT_EQ(DISP_E_MEMBERNOTFOUND, page_->EditProperty(DISPID_FONT));
}

TEST_F(PropertyPageTest, RefusesWhatAPropertyWindowMustNotDo) {
    Site& site = design();
    const auto page = make_page(pages_of(site).front());
    const RECT place = {};
    EXPECT_EQ(E_UNEXPECTED, page->Activate(container_.form().window(), &place, FALSE));
    EXPECT_EQ(E_UNEXPECTED, page->Deactivate());
    EXPECT_EQ(E_UNEXPECTED, page->Show(SW_SHOW));
    EXPECT_EQ(E_UNEXPECTED, page->Move(&place));
    EXPECT_EQ(E_UNEXPECTED, page->Apply());
    EXPECT_EQ(E_UNEXPECTED, page->EditProperty(0));
    EXPECT_EQ(E_POINTER, page->GetPageInfo(nullptr));
    EXPECT_EQ(E_POINTER, page->SetObjects(1, nullptr));
    IUnknown* nothing = nullptr;
    EXPECT_EQ(E_POINTER, page->SetObjects(1, &nothing));
    IUnknown* other = page_site_.Get();
    EXPECT_EQ(E_NOINTERFACE, page->SetObjects(1, &other));
    EXPECT_EQ(E_NOTIMPL, page->Help(nullptr));
    EXPECT_EQ(S_OK, page->SetPageSite(page_site_.Get()));
    EXPECT_EQ(E_UNEXPECTED, page->SetPageSite(page_site_.Get()));
}

TEST_F(PropertyPageTest, IsFoundFromAPropertyThatHasANumber) {
    Site& site = design();
    CLSID page = {};
    const auto browsing = site.as<IPerPropertyBrowsing>();
    EXPECT_EQ(S_OK, browsing->MapPropertyToPage(dispatch_id(site.as<IDispatch>().Get(), L"ColumnHeader"), &page));
    EXPECT_EQ(pages_of(site)[2], page);
    EXPECT_EQ(PERPROP_E_NOPAGEAVAILABLE,
              browsing->MapPropertyToPage(dispatch_id(site.as<IDispatch>().Get(), L"Locked"), &page));
}

TEST_F(PropertyPageTest, TheFormMayLoseTheControlWhileItIsOpen) {
    Site& site = design();
    open(L"Field", {&site});
    type(L"MaxLength", L"5");
    site.destroy();
    EXPECT_EQ(S_OK, page_->SetObjects(0, nullptr));
    EXPECT_EQ(S_FALSE, page_->IsPageDirty());
}

// What is typed on the way from one number of columns to another is nobody's wish.
TEST_F(PropertyPageTest, TypingAnotherNumberOfColumnsKeepsTheirCaptions) {
    Site& site = design();
    open(L"Columns", {&site});
    type(L"Columns", L"3");
    choose(L"Column", 2);
    type(L"ColumnHeader", L"Name");
    for (const wchar_t* typed : {L"", L"1", L"12"})
        type(L"Columns", typed);
    choose(L"Column", 2);
    EXPECT_EQ(L"Name", text_of(box(L"ColumnHeader")));
    EXPECT_EQ(S_OK, page_->Apply());
    Bstr header;
    vellora(site)->get_ColumnHeader(3, header.out());
    EXPECT_EQ(L"Name", header.text());
}

} // namespace
} // namespace vellora::test
