// IPersistMemory: the same bytes as in a stream, in memory of the container.
#pragma once

#include "com/delegating.h"

namespace vellora::com {

class ControlHost;

class PersistMemory final : public Delegating<IPersistMemory> {
public:
    explicit PersistMemory(ControlHost& host);

    STDMETHODIMP GetClassID(CLSID* class_id) noexcept override;
    STDMETHODIMP IsDirty() noexcept override;
    STDMETHODIMP Load(void* memory, ULONG size) noexcept override;
    /// E_INVALIDARG for memory that is too small, which stays as it is.
    STDMETHODIMP Save(void* memory, BOOL clear_dirty, ULONG size) noexcept override;
    STDMETHODIMP GetSizeMax(ULONG* size) noexcept override;
    STDMETHODIMP InitNew() noexcept override;

private:
    ControlHost& host_;
};

} // namespace vellora::com
