#include "form_frame.h"

namespace vellora::samples {

using Microsoft::WRL::ComPtr;

bool FormFrame::takes(MSG& message) const {
    const bool key = message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST;
    // The control may become inactive while it handles the key.
    const ComPtr<IOleInPlaceActiveObject> active = active_;
    return key && active && active->TranslateAccelerator(&message) == S_OK;
}

void FormFrame::deactivate_current() const {
    ComPtr<IOleInPlaceObject> object;
    if (active_ && SUCCEEDED(active_.As(&object)))
        object->UIDeactivate();
}

void FormFrame::form_activated(bool active) const {
    if (const ComPtr<IOleInPlaceActiveObject> object = active_)
        object->OnFrameWindowActivate(active);
}

STDMETHODIMP FormFrame::GetWindow(HWND* window) {
    *window = form_;
    return S_OK;
}

STDMETHODIMP FormFrame::SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR) {
    active_ = object;
    return S_OK;
}

} // namespace vellora::samples
