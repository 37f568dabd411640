#include "com/property_page.h"

#include "com/bstr.h"
#include "com/guard.h"

namespace vellora::com {

HRESULT PropertyPage::create(const PageClass& page, IUnknown* outer, REFIID id, void** out) noexcept {
    return guard([&] {
        need(out);
        *out = nullptr;
        if (outer)
            return CLASS_E_NOAGGREGATION;
        const auto made = adopt<IPropertyPage2>(new PropertyPage(page));
        return made->QueryInterface(id, out);
    });
}

STDMETHODIMP PropertyPage::QueryInterface(REFIID id, void** out) noexcept {
    if (!out)
        return E_POINTER;
    *out = nullptr;
    if (id != IID_IUnknown && id != IID_IPropertyPage && id != IID_IPropertyPage2)
        return E_NOINTERFACE;
    *out = static_cast<IPropertyPage2*>(this);
    AddRef();
    return S_OK;
}

STDMETHODIMP_(ULONG) PropertyPage::AddRef() noexcept {
    return ++references_;
}

STDMETHODIMP_(ULONG) PropertyPage::Release() noexcept {
    const ULONG left = --references_;
    if (left == 0)
        delete this;
    return left;
}

STDMETHODIMP PropertyPage::SetPageSite(IPropertyPageSite* site) noexcept {
    if (site && site_)
        return E_UNEXPECTED;
    site_ = site;
    return S_OK;
}

STDMETHODIMP PropertyPage::Activate(HWND parent, LPCRECT place, BOOL) noexcept {
    return guard([&] {
        need(place);
        if (!model_.has_objects() || window_.handle())
            return E_UNEXPECTED;
        window_.create(parent, *place);
        return S_OK;
    });
}

STDMETHODIMP PropertyPage::Deactivate() noexcept {
    if (!window_.handle())
        return E_UNEXPECTED;
    window_.destroy();
    return S_OK;
}

STDMETHODIMP PropertyPage::GetPageInfo(PROPPAGEINFO* info) noexcept {
    return guard([&] {
        need(info);
        const SIZE size = PageWindow::size(model_.page());
        *info = {sizeof *info, make_task_text(narrow_view(model_.page().title)), size, nullptr, nullptr, 0};
    });
}

STDMETHODIMP PropertyPage::SetObjects(ULONG count, IUnknown** objects) noexcept {
    return guard([&] {
        if (count != 0)
            need(objects);
        model_.set_objects({objects, count});
        window_.load();
    });
}

STDMETHODIMP PropertyPage::Show(UINT command) noexcept {
    if (!window_.handle())
        return E_UNEXPECTED;
    ShowWindow(window_.handle(), static_cast<int>(command));
    return S_OK;
}

STDMETHODIMP PropertyPage::Move(LPCRECT place) noexcept {
    if (!place)
        return E_POINTER;
    if (!window_.handle())
        return E_UNEXPECTED;
    MoveWindow(window_.handle(), place->left, place->top, place->right - place->left,
               place->bottom - place->top, TRUE);
    return S_OK;
}

STDMETHODIMP PropertyPage::IsPageDirty() noexcept {
    return model_.changed() ? S_OK : S_FALSE;
}

STDMETHODIMP PropertyPage::Apply() noexcept {
    const ComPtr<IUnknown> alive = this; // the user may close the property window while the complaint is shown
    return guard([&] {
        if (!model_.has_objects())
            return E_UNEXPECTED;
        if (const auto refusal = model_.apply()) {
            window_.complain(*refusal);
            return E_FAIL;
        }
        return S_OK;
    });
}

STDMETHODIMP PropertyPage::Help(LPCOLESTR) noexcept {
    return E_NOTIMPL;
}

STDMETHODIMP PropertyPage::TranslateAccelerator(MSG* message) noexcept {
    const ComPtr<IUnknown> alive = this;
    return guard([&] {
        need(message);
        const HWND dialog = window_.handle();
        if (!dialog || !IsChild(dialog, message->hwnd))
            return S_FALSE;
        const ComPtr<IPropertyPageSite> site = site_;
        const bool ends = ends_window(*message);
        if ((ends || leaves_page(*message)) && site && site->TranslateAccelerator(message) == S_OK)
            return S_OK;
        return !ends && IsDialogMessageW(dialog, message) ? S_OK : S_FALSE;
    });
}

/// Enter and Esc are for OK and Cancel of the property window, which a dialog within it would keep from them; a button
/// and an open list of values have a use of their own for them.
bool PropertyPage::ends_window(MSG& message) const {
    const bool enter = message.wParam == VK_RETURN;
    if (message.message != WM_KEYDOWN || (!enter && message.wParam != VK_ESCAPE))
        return false;
    const LRESULT kind =
        SendMessageW(message.hwnd, WM_GETDLGCODE, message.wParam, reinterpret_cast<LPARAM>(&message));
    constexpr LRESULT button = DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON;
    return (kind & (enter ? DLGC_WANTMESSAGE | button : DLGC_WANTMESSAGE)) == 0;
}

/// Tab on the last field, and Shift+Tab on the first, go on among the buttons of the property window.
bool PropertyPage::leaves_page(const MSG& message) const {
    if (message.message != WM_KEYDOWN || message.wParam != VK_TAB)
        return false;
    const bool backwards = GetKeyState(VK_SHIFT) < 0;
    const HWND first = GetNextDlgTabItem(window_.handle(), nullptr, FALSE);
    const HWND edge = backwards ? first : GetNextDlgTabItem(window_.handle(), first, TRUE);
    return edge && (edge == message.hwnd || IsChild(edge, message.hwnd));
}

STDMETHODIMP PropertyPage::EditProperty(DISPID property) noexcept {
    return guard([&] {
        if (!window_.handle())
            return E_UNEXPECTED;
        return window_.go_to(property) ? S_OK : DISP_E_MEMBERNOTFOUND;
    });
}

void PropertyPage::page_changed() {
    // The property window may take its site away meanwhile.
    if (const ComPtr<IPropertyPageSite> site = site_)
        site->OnStatusChange(PROPPAGESTATUS_DIRTY);
}

} // namespace vellora::com
