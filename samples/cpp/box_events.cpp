#include "box_events.h"

#include "hosting/failure.h"

#include <utility>

namespace vellora::samples {

using Microsoft::WRL::ComPtr;

namespace {

// As the type library numbers them. COM passes arguments last one first; these events have one at most.
enum EventId : DISPID { click_event = 2, key_press_event = 7, drop_down_event = 12 };

} // namespace

void BoxEvents::listen_to(IUnknown* control) {
    ComPtr<IConnectionPointContainer> points;
    check(control->QueryInterface(IID_PPV_ARGS(&points)), L"Asking the control for its events");
    check(points->FindConnectionPoint(__uuidof(__Vellora), &point_), L"Finding the control's events");
    check(point_->Advise(this, &cookie_), L"Listening to the control's events");
}

void BoxEvents::stop() {
    if (const ComPtr<IConnectionPoint> point = std::move(point_))
        point->Unadvise(cookie_);
}

STDMETHODIMP BoxEvents::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT*, EXCEPINFO*, UINT*) {
    try {
        if (id == click_event && on_click)
            on_click();
        else if (id == key_press_event && on_key_press)
            on_key_press(*arguments->rgvarg[0].piVal);
        else if (id == drop_down_event && on_drop_down)
            on_drop_down(static_cast<vlDropDownState>(*arguments->rgvarg[0].plVal));
        return S_OK;
    } catch (...) {
        return E_FAIL; // exceptions must not reach the control
    }
}

STDMETHODIMP BoxEvents::GetTypeInfoCount(UINT* count) {
    *count = 0;
    return S_OK;
}

} // namespace vellora::samples
