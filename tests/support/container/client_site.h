// IOleClientSite and, for controls that ask for their container, IOleContainer.
#pragma once

#include "support/container/site_part.h"

#include <oleidl.h>

namespace vellora::test {

class ClientSite final : public SitePart<IOleClientSite> {
public:
    using SitePart::SitePart;
    STDMETHODIMP SaveObject() override;
    STDMETHODIMP GetMoniker(DWORD assign, DWORD which, IMoniker** moniker) override;
    STDMETHODIMP GetContainer(IOleContainer** container) override;
    STDMETHODIMP ShowObject() override;
    STDMETHODIMP OnShowWindow(BOOL show) override;
    STDMETHODIMP RequestNewObjectLayout() override;
};

class OleContainer final : public SitePart<IOleContainer> {
public:
    using SitePart::SitePart;
    STDMETHODIMP ParseDisplayName(IBindCtx* context, LPOLESTR name, ULONG* eaten,
                                  IMoniker** moniker) override;
    STDMETHODIMP EnumObjects(DWORD flags, IEnumUnknown** objects) override;
    STDMETHODIMP LockContainer(BOOL lock) override;
};

} // namespace vellora::test
