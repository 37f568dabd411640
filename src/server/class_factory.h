// IClassFactory of the control and of its property pages.
#pragma once

#include "com/live_object.h"
#include "com/page_class.h"

#include <atomic>

namespace vellora::server {

class ClassFactory final : public IClassFactory {
public:
    /// CLASS_E_CLASSNOTAVAILABLE for a class that is not of this library.
    static HRESULT create(REFCLSID class_id, REFIID id, void** out) noexcept;

    STDMETHODIMP QueryInterface(REFIID id, void** out) noexcept override;
    STDMETHODIMP_(ULONG) AddRef() noexcept override;
    STDMETHODIMP_(ULONG) Release() noexcept override;
    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID id, void** out) noexcept override;
    STDMETHODIMP LockServer(BOOL lock) noexcept override;

private:
    /// Of the page, or without one of the control.
    explicit ClassFactory(const com::PageClass* page) noexcept : page_(page) {}
    ~ClassFactory() = default;

    const com::PageClass* page_;
    com::LiveObject alive_;
    std::atomic<ULONG> references_ = 1;
};

} // namespace vellora::server
