#include "server/class_factory.h"

#include "com/control_object.h"
#include "com/guard.h"
#include "com/property_page.h"
#include "server/module.h"

#include <algorithm>

namespace vellora::server {

HRESULT ClassFactory::create(REFCLSID class_id, REFIID id, void** out) noexcept {
    return com::guard([&] {
        com::need(out);
        *out = nullptr;
        const std::span<const com::PageClass> pages = module().control.pages;
        const auto page = std::ranges::find(pages, class_id, &com::PageClass::class_id);
        if (page == pages.end() && class_id != module().control.class_id)
            return CLASS_E_CLASSNOTAVAILABLE;
        const auto factory = com::adopt<IClassFactory>(new ClassFactory(page == pages.end() ? nullptr : &*page));
        return factory->QueryInterface(id, out);
    });
}

STDMETHODIMP ClassFactory::QueryInterface(REFIID id, void** out) noexcept {
    if (!out)
        return E_POINTER;
    *out = nullptr;
    if (id != IID_IClassFactory && id != IID_IUnknown)
        return E_NOINTERFACE;
    *out = static_cast<IClassFactory*>(this);
    AddRef();
    return S_OK;
}

STDMETHODIMP_(ULONG) ClassFactory::AddRef() noexcept {
    return ++references_;
}

STDMETHODIMP_(ULONG) ClassFactory::Release() noexcept {
    const ULONG left = --references_;
    if (left == 0)
        delete this;
    return left;
}

STDMETHODIMP ClassFactory::CreateInstance(IUnknown* outer, REFIID id, void** out) noexcept {
    if (page_)
        return com::PropertyPage::create(*page_, outer, id, out);
    return com::ControlObject::create(module().control, module().make_client, outer, id, out);
}

STDMETHODIMP ClassFactory::LockServer(BOOL lock) noexcept {
    com::lock_library(lock != FALSE);
    return S_OK;
}

} // namespace vellora::server
