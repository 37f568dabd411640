#include "support/container/in_place_site.h"

#include "support/container/form.h"
#include "support/container/in_place_frame.h"

namespace vellora::test {

using Microsoft::WRL::ComPtr;

namespace {

std::string size_text(const RECT& rect) {
    return "(" + std::to_string(rect.right - rect.left) + " x " + std::to_string(rect.bottom - rect.top) +
           ")";
}

} // namespace

STDMETHODIMP InPlaceSite::GetWindow(HWND* window) {
    *window = nullptr;
    const auto answer = instead("IOleInPlaceSite::GetWindow");
    if (answer || !state_.form)
        return answer.value_or(E_FAIL);
    *window = state_.form->window();
    return *window ? S_OK : E_FAIL;
}

STDMETHODIMP InPlaceSite::ContextSensitiveHelp(BOOL) {
    return enter("IOleInPlaceSite::ContextSensitiveHelp");
}
STDMETHODIMP InPlaceSite::CanInPlaceActivate() {
    return enter("IOleInPlaceSite::CanInPlaceActivate");
}
STDMETHODIMP InPlaceSite::OnInPlaceActivate() {
    return enter("IOleInPlaceSite::OnInPlaceActivate");
}
STDMETHODIMP InPlaceSite::OnUIActivate() {
    return enter("IOleInPlaceSite::OnUIActivate");
}

STDMETHODIMP InPlaceSite::GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document,
                                           RECT* place, RECT* clip, OLEINPLACEFRAMEINFO* info) {
    *frame = nullptr;
    *document = nullptr;
    const auto answer = instead("IOleInPlaceSite::GetWindowContext");
    if (answer || !state_.form)
        return answer.value_or(E_FAIL);
    *frame = make_frame(state_, false).Detach();
    if (state_.form->is_mdi_child())
        *document = make_frame(state_, true).Detach();
    *place = state_.place;
    GetClientRect(state_.form->window(), clip);
    *info = {sizeof *info, state_.form->is_mdi_child(), state_.form->frame(), nullptr, 0};
    return S_OK;
}

STDMETHODIMP InPlaceSite::Scroll(SIZE) {
    return enter("IOleInPlaceSite::Scroll");
}

STDMETHODIMP InPlaceSite::OnUIDeactivate(BOOL) {
    return enter("IOleInPlaceSite::OnUIDeactivate");
}
STDMETHODIMP InPlaceSite::OnInPlaceDeactivate() {
    return enter("IOleInPlaceSite::OnInPlaceDeactivate");
}
STDMETHODIMP InPlaceSite::DiscardUndoState() {
    return enter("IOleInPlaceSite::DiscardUndoState");
}
STDMETHODIMP InPlaceSite::DeactivateAndUndo() {
    return enter("IOleInPlaceSite::DeactivateAndUndo");
}

STDMETHODIMP InPlaceSite::OnPosRectChange(const RECT* place) {
    const HRESULT answer = enter("IOleInPlaceSite::OnPosRectChange", size_text(*place));
    if (FAILED(answer) || !state_.grants_sizes || !state_.form)
        return answer;
    state_.place = *place;
    ComPtr<IOleInPlaceObject> object;
    if (state_.control && SUCCEEDED(state_.control.As(&object))) {
        RECT clip;
        GetClientRect(state_.form->window(), &clip);
        const RECT granted = state_.place;
        object->SetObjectRects(&granted, &clip);
    }
    return S_OK;
}

STDMETHODIMP InPlaceSite::OnInPlaceActivateEx(BOOL* no_redraw, DWORD) {
    if (no_redraw)
        *no_redraw = FALSE;
    return enter("IOleInPlaceSite::OnInPlaceActivate");
}
STDMETHODIMP InPlaceSite::OnInPlaceDeactivateEx(BOOL) {
    return enter("IOleInPlaceSite::OnInPlaceDeactivate");
}
STDMETHODIMP InPlaceSite::RequestUIActivate() {
    return enter("IOleInPlaceSite::RequestUIActivate");
}

} // namespace vellora::test
