#include "support/container/control_site.h"

#include "support/container/extender.h"

namespace vellora::test {
namespace {

// Both directions of a length: himetric (0.01 mm) and twips (1440 to the inch).
float to_twips(LONG himetric) {
    return static_cast<float>(himetric) * 1440.0F / 2540.0F;
}
LONG to_himetric(float twips) {
    return static_cast<LONG>(twips * 2540.0F / 1440.0F);
}

} // namespace

STDMETHODIMP ControlSite::OnControlInfoChanged() {
    return enter("IOleControlSite::OnControlInfoChanged");
}

STDMETHODIMP ControlSite::LockInPlaceActive(BOOL lock) {
    return enter("IOleControlSite::LockInPlaceActive", lock ? "(True)" : "(False)");
}

STDMETHODIMP ControlSite::GetExtendedControl(IDispatch** extender) {
    *extender = nullptr;
    if (const auto answer = instead("IOleControlSite::GetExtendedControl"))
        return *answer;
    if (!state_.has_extender)
        return E_NOTIMPL;
    *extender = make_extender(state_).Detach();
    return S_OK;
}

STDMETHODIMP ControlSite::TransformCoords(POINTL* himetric, POINTF* container, DWORD flags) {
    if (const auto answer = instead("IOleControlSite::TransformCoords"))
        return *answer;
    if (flags & XFORMCOORDS_HIMETRICTOCONTAINER) {
        container->x = to_twips(himetric->x);
        container->y = to_twips(himetric->y);
    } else {
        himetric->x = to_himetric(container->x);
        himetric->y = to_himetric(container->y);
    }
    return S_OK;
}

STDMETHODIMP ControlSite::TranslateAccelerator(MSG*, DWORD) {
    const HRESULT answer = enter("IOleControlSite::TranslateAccelerator");
    return FAILED(answer) ? answer : S_FALSE;
}

STDMETHODIMP ControlSite::OnFocus(BOOL got) {
    return enter("IOleControlSite::OnFocus", got ? "(True)" : "(False)");
}

STDMETHODIMP ControlSite::ShowPropertyFrame() {
    const HRESULT answer = enter("IOleControlSite::ShowPropertyFrame");
    return FAILED(answer) ? answer : E_NOTIMPL;
}

} // namespace vellora::test
