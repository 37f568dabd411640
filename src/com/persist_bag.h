// IPersistPropertyBag: settings as named values of the container, the door form designers use.
#pragma once

#include "com/delegating.h"

namespace vellora::com {

class ControlHost;

class PersistBag final : public Delegating<IPersistPropertyBag> {
public:
    explicit PersistBag(ControlHost& host);

    STDMETHODIMP GetClassID(CLSID* class_id) noexcept override;
    STDMETHODIMP InitNew() noexcept override;
    STDMETHODIMP Load(IPropertyBag* bag, IErrorLog* log) noexcept override;
    STDMETHODIMP Save(IPropertyBag* bag, BOOL clear_dirty, BOOL save_all) noexcept override;

private:
    ControlHost& host_;
};

} // namespace vellora::com
