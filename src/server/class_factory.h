// IClassFactory of the control.
#pragma once

#include "com/live_object.h"
#include "com/ole.h"

#include <atomic>

namespace vellora::server {

class ClassFactory final : public IClassFactory {
public:
    static HRESULT create(REFIID id, void** out) noexcept;

    STDMETHODIMP QueryInterface(REFIID id, void** out) noexcept override;
    STDMETHODIMP_(ULONG) AddRef() noexcept override;
    STDMETHODIMP_(ULONG) Release() noexcept override;
    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID id, void** out) noexcept override;
    STDMETHODIMP LockServer(BOOL lock) noexcept override;

private:
    ClassFactory() = default;
    ~ClassFactory() = default;

    com::LiveObject alive_;
    std::atomic<ULONG> references_ = 1;
};

} // namespace vellora::server
