#include "support/container/client_site.h"

namespace vellora::test {
namespace {

LONG to_pixels(LONG himetric, LONG twips_per_pixel) {
    return MulDiv(himetric, 1440, 2540 * twips_per_pixel);
}

// The control's place gets the size that the control says it has.
void take_extent(SiteState& state) {
    Microsoft::WRL::ComPtr<IOleObject> object;
    SIZEL extent{};
    if (!state.control || FAILED(state.control.As(&object)) ||
        FAILED(object->GetExtent(DVASPECT_CONTENT, &extent)))
        return;
    const SIZE factor = twips_per_pixel();
    state.place.right = state.place.left + to_pixels(extent.cx, factor.cx);
    state.place.bottom = state.place.top + to_pixels(extent.cy, factor.cy);
}

} // namespace

STDMETHODIMP ClientSite::SaveObject() {
    return enter("IOleClientSite::SaveObject");
}

STDMETHODIMP ClientSite::GetMoniker(DWORD, DWORD, IMoniker** moniker) {
    *moniker = nullptr;
    return instead("IOleClientSite::GetMoniker").value_or(E_NOTIMPL);
}

STDMETHODIMP ClientSite::GetContainer(IOleContainer** container) {
    *container = nullptr;
    const auto answer = instead("IOleClientSite::GetContainer");
    return answer ? *answer : state_.identity->QueryInterface(IID_PPV_ARGS(container));
}

STDMETHODIMP ClientSite::ShowObject() {
    return enter("IOleClientSite::ShowObject");
}

STDMETHODIMP ClientSite::OnShowWindow(BOOL show) {
    return enter("IOleClientSite::OnShowWindow", show ? "(True)" : "(False)");
}

STDMETHODIMP ClientSite::RequestNewObjectLayout() {
    const HRESULT answer = enter("IOleClientSite::RequestNewObjectLayout");
    if (FAILED(answer) || !state_.grants_sizes)
        return FAILED(answer) ? answer : E_NOTIMPL;
    take_extent(state_);
    return S_OK;
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
