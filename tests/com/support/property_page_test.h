// A property page in a window of the test's own, on a form.
#pragma once

#include "com/support/box_watcher.h"
#include "com/support/host_test.h"
#include "support/container/call_by_name.h"
#include "support/container/library.h"
#include "support/container/own_object.h"
#include "support/container/text.h"

namespace vellora::test {

inline std::vector<CLSID> pages_of(Site& site) {
    CAUUID pages = {};
    EXPECT_EQ(S_OK, site.as<ISpecifyPropertyPages>()->GetPages(&pages));
    std::vector<CLSID> ids(pages.pElems, pages.pElems + pages.cElems);
    CoTaskMemFree(pages.pElems);
    return ids;
}

inline ComPtr<IPropertyPage2> make_page(const CLSID& class_id) {
    ComPtr<IPropertyPage2> page;
    EXPECT_EQ(S_OK, Library::instance().create(class_id).As(&page));
    return page;
}

inline std::wstring title_of(IPropertyPage2* page) {
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

} // namespace vellora::test
