// IPersistStorage: the same stream, inside a storage the container keeps for the control.
#pragma once

#include "com/delegating.h"

namespace vellora::com {

class ControlHost;

/// Holds on to no storage between calls, so the scribble rules of storages ask nothing more of it.
class PersistStorage final : public Delegating<IPersistStorage> {
public:
    explicit PersistStorage(ControlHost& host);

    STDMETHODIMP GetClassID(CLSID* class_id) noexcept override;
    STDMETHODIMP IsDirty() noexcept override;
    STDMETHODIMP InitNew(IStorage* storage) noexcept override;
    STDMETHODIMP Load(IStorage* storage) noexcept override;
    STDMETHODIMP Save(IStorage* storage, BOOL same_as_load) noexcept override;
    STDMETHODIMP SaveCompleted(IStorage* storage) noexcept override;
    STDMETHODIMP HandsOffStorage() noexcept override;

private:
    ControlHost& host_;
    bool copied_ = false; // the last Save was into another storage than the control's own
};

} // namespace vellora::com
