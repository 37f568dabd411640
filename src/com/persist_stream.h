// IPersistStreamInit, which also answers for IPersistStream and IPersist: settings as one stream.
#pragma once

#include "com/delegating.h"

namespace vellora::com {

class ControlHost;

class PersistStream final : public Delegating<IPersistStreamInit> {
public:
    explicit PersistStream(ControlHost& host);

    STDMETHODIMP GetClassID(CLSID* class_id) noexcept override;
    STDMETHODIMP IsDirty() noexcept override;
    STDMETHODIMP Load(IStream* stream) noexcept override;
    STDMETHODIMP Save(IStream* stream, BOOL clear_dirty) noexcept override;
    STDMETHODIMP GetSizeMax(ULARGE_INTEGER* size) noexcept override;
    STDMETHODIMP InitNew() noexcept override;

private:
    ControlHost& host_;
};

} // namespace vellora::com
