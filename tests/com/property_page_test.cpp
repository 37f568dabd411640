// The property pages of the real library, in a property window of the test's own and in the platform's.
#include "com/support/box_watcher.h"
#include "com/support/host_test.h"
#include "support/container/call_by_name.h"
#include "support/container/library.h"
#include "support/container/own_object.h"
#include "support/container/text.h"

namespace vellora::test {
namespace {

std::vector<CLSID> pages_of(Site& site) {
    CAUUID pages = {};
    EXPECT_EQ(S_OK, site.as<ISpecifyPropertyPages>()->GetPages(&pages));
    std::vector<CLSID> ids(pages.pElems, pages.pElems + pages.cElems);
    CoTaskMemFree(pages.pElems);
    return ids;
}

ComPtr<IPropertyPage2> make_page(const CLSID& class_id) {
    ComPtr<IPropertyPage2> page;
    EXPECT_EQ(S_OK, Library::instance().create(class_id).As(&page));
    return page;
}

std::wstring title_of(IPropertyPage2* page) {
    PROPPAGEINFO info = {};
    info.cb = sizeof info;
    EXPECT_EQ(S_OK, page->GetPageInfo(&info));
    EXPECT_GT(info.size.cx, 100);
    EXPECT_GT(info.size.cy, 50);
    const std::wstring title = info.pszTitle;
    CoTaskMemFree(info.pszTitle);
    return title;
}

/// What a page sees of the window it stands in.
class PageSite final : public OwnObject<IPropertyPageSite> {
public:
    PageSite() : OwnObject({IID_IPropertyPageSite}) {}
    STDMETHODIMP OnStatusChange(DWORD flags) override {
        changes += flags == PROPPAGESTATUS_DIRTY ? 1 : 100;
        return S_OK;
    }
    STDMETHODIMP GetLocaleID(LCID* locale) override {
        *locale = LOCALE_USER_DEFAULT;
        return S_OK;
    }
    STDMETHODIMP GetPageContainer(IUnknown** container) override {
        *container = nullptr;
        return E_NOTIMPL;
    }
    STDMETHODIMP TranslateAccelerator(MSG*) override {
        ++keys;
        return S_OK;
    }
    int changes = 0;
    int keys = 0;
};

class PropertyPageTest : public HostTest {
protected:
    /// Opens the page with a title on the form, for the given controls.
    void open(const std::wstring& title, std::vector<Site*> sites) {
        for (const CLSID& id : pages_of(*sites.front()))
            if (const auto candidate = make_page(id); title_of(candidate.Get()) == title)
                page_ = candidate;
        ASSERT_TRUE(page_);
        std::vector<IUnknown*> objects;
        for (Site* site : sites)
            objects.push_back(site->as<IDispatch>().Get());
        EXPECT_EQ(S_OK, page_->SetPageSite(page_site_.Get()));
        EXPECT_EQ(S_OK, page_->SetObjects(static_cast<ULONG>(objects.size()), objects.data()));
        const RECT place = {0, 60, 380, 300};
        EXPECT_EQ(S_OK, page_->Activate(container_.form().window(), &place, FALSE));
        EXPECT_EQ(S_OK, page_->Show(SW_SHOW));
        dialog_ = FindWindowExW(container_.form().window(), nullptr, L"#32770", nullptr);
        ASSERT_TRUE(dialog_);
    }
    void TearDown() override {
        if (page_) {
            page_->Deactivate();
            page_->SetObjects(0, nullptr);
            page_->SetPageSite(nullptr);
        }
    }
    /// The box that belongs to a label, or the check box with the text itself.
    HWND box(const std::wstring& label) {
        for (HWND child = GetWindow(dialog_, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
            if (text_of(child) == label)
                return (GetWindowLongPtrW(child, GWL_STYLE) & WS_TABSTOP) != 0 ? child
                                                                               : GetWindow(child, GW_HWNDNEXT);
        ADD_FAILURE() << "no box " << utf8(label);
        return nullptr;
    }
    void type(const std::wstring& label, const std::wstring& text) { SetWindowTextW(box(label), text.c_str()); }
    void choose(const std::wstring& label, int index) {
        const HWND combo = box(label);
        SendMessageW(combo, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
        notify(combo, CBN_SELCHANGE);
    }
    void tick(const std::wstring& label) { SendMessageW(box(label), BM_CLICK, 0, 0); }
    void notify(HWND child, int code) {
        SendMessageW(dialog_, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(child), code), reinterpret_cast<LPARAM>(child));
    }

    ComPtr<PageSite> page_site_ = new PageSite;
    ComPtr<IPropertyPage2> page_;
    HWND dialog_ = nullptr;
};

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

TEST_F(PropertyPageTest, TheFormMayLoseTheControlWhileItIsOpen) {
    Site& site = design();
    open(L"Field", {&site});
    type(L"MaxLength", L"5");
    site.destroy();
    EXPECT_EQ(S_OK, page_->SetObjects(0, nullptr));
    EXPECT_EQ(S_FALSE, page_->IsPageDirty());
}

} // namespace
} // namespace vellora::test
