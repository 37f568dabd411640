#include "support/container/client_site.h"

namespace vellora::test {

STDMETHODIMP ClientSite::SaveObject() {
    return enter("IOleClientSite::SaveObject");
}

STDMETHODIMP ClientSite::GetMoniker(DWORD, DWORD, IMoniker** moniker) {
    *moniker = nullptr;
    const HRESULT answer = enter("IOleClientSite::GetMoniker");
    return FAILED(answer) ? answer : E_NOTIMPL;
}

STDMETHODIMP ClientSite::GetContainer(IOleContainer** container) {
    *container = nullptr;
    const HRESULT answer = enter("IOleClientSite::GetContainer");
    return FAILED(answer) ? answer : state_.identity->QueryInterface(IID_PPV_ARGS(container));
}

STDMETHODIMP ClientSite::ShowObject() {
    return enter("IOleClientSite::ShowObject");
}

STDMETHODIMP ClientSite::OnShowWindow(BOOL show) {
    return enter("IOleClientSite::OnShowWindow", show ? "(True)" : "(False)");
}

STDMETHODIMP ClientSite::RequestNewObjectLayout() {
    const HRESULT answer = enter("IOleClientSite::RequestNewObjectLayout");
    return FAILED(answer) ? answer : E_NOTIMPL;
}

STDMETHODIMP OleContainer::ParseDisplayName(IBindCtx*, LPOLESTR, ULONG*, IMoniker**) {
    enter("IOleContainer::ParseDisplayName");
    return E_NOTIMPL;
}

STDMETHODIMP OleContainer::EnumObjects(DWORD, IEnumUnknown** objects) {
    *objects = nullptr;
    enter("IOleContainer::EnumObjects");
    return E_NOTIMPL;
}

STDMETHODIMP OleContainer::LockContainer(BOOL lock) {
    return enter("IOleContainer::LockContainer", lock ? "(True)" : "(False)");
}

} // namespace vellora::test
