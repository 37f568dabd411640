// IPropertyPage2: a page of properties in the property window of a design tool.
#pragma once

#include "com/live_object.h"
#include "com/page_window.h"

#include <atomic>

namespace vellora::com {

class PropertyPage final : public IPropertyPage2, private PageWindow::Listener {
public:
    /// `page` has to outlive the object.
    static HRESULT create(const PageClass& page, IUnknown* outer, REFIID id, void** out) noexcept;

    STDMETHODIMP QueryInterface(REFIID id, void** out) noexcept override;
    STDMETHODIMP_(ULONG) AddRef() noexcept override;
    STDMETHODIMP_(ULONG) Release() noexcept override;

    STDMETHODIMP SetPageSite(IPropertyPageSite* site) noexcept override;
    STDMETHODIMP Activate(HWND parent, LPCRECT place, BOOL modal) noexcept override;
    STDMETHODIMP Deactivate() noexcept override;
    STDMETHODIMP GetPageInfo(PROPPAGEINFO* info) noexcept override;
    STDMETHODIMP SetObjects(ULONG count, IUnknown** objects) noexcept override;
    STDMETHODIMP Show(UINT command) noexcept override;
    STDMETHODIMP Move(LPCRECT place) noexcept override;
    STDMETHODIMP IsPageDirty() noexcept override;
    STDMETHODIMP Apply() noexcept override;
    STDMETHODIMP Help(LPCOLESTR folder) noexcept override;
    STDMETHODIMP TranslateAccelerator(MSG* message) noexcept override;
    STDMETHODIMP EditProperty(DISPID property) noexcept override;

private:
    explicit PropertyPage(const PageClass& page) : model_(page), window_(model_, *this) {}
    ~PropertyPage() = default;

    void page_changed() override;
    bool ends_window(MSG& message) const;
    bool leaves_page(const MSG& message) const;

    LiveObject alive_;
    std::atomic<ULONG> references_ = 1;
    ComPtr<IPropertyPageSite> site_;
    PageModel model_;
    PageWindow window_;
};

} // namespace vellora::com
