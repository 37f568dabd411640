#include "control_site.h"

#include "failure.h"

#include <olectl.h>
#include <utility>

namespace vellora::samples {

using Microsoft::WRL::ComPtr;

namespace {

void give(VARIANT* result, bool truth) {
    result->vt = VT_BOOL;
    result->boolVal = truth ? VARIANT_TRUE : VARIANT_FALSE;
}

void give(VARIANT* result, const std::wstring& text) {
    result->vt = VT_BSTR;
    result->bstrVal = SysAllocString(text.c_str());
}

void give(VARIANT* result, ComPtr<IFontDisp> object) {
    result->vt = VT_DISPATCH;
    result->pdispVal = object.Detach();
}

} // namespace

ControlSite::ControlSite(const Surroundings& surroundings, std::wstring name)
    : surroundings_(surroundings), name_(std::move(name)) {}

void ControlSite::take(IUnknown* control, IPropertyBag* saved) {
    adopt(control);
    check(object_->SetClientSite(this), L"Giving the control a site");
    load(control, saved);
    show();
}

void ControlSite::adopt(IUnknown* control) {
    check(control->QueryInterface(IID_PPV_ARGS(&object_)), L"Asking the control for IOleObject");
    check(control->QueryInterface(IID_PPV_ARGS(&in_place_)), L"Asking the control for IOleInPlaceObject");
}

void ControlSite::show() {
    check(object_->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, this, 0, surroundings_.form, &place_),
          L"Showing the control");
}

void ControlSite::load(IUnknown* control, IPropertyBag* saved) {
    ComPtr<IPersistPropertyBag> settings;
    check(control->QueryInterface(IID_PPV_ARGS(&settings)), L"Asking the control for IPersistPropertyBag");
    check(saved ? settings->Load(saved, nullptr) : settings->InitNew(), L"Setting the control up");
}

void ControlSite::move(const RECT& place) {
    place_ = place;
    if (in_place_)
        in_place_->SetObjectRects(&place, &place);
}

void ControlSite::rename(std::wstring name) {
    name_ = std::move(name);
    ComPtr<IOleControl> control;
    if (object_ && SUCCEEDED(object_.As(&control)))
        control->OnAmbientPropertyChange(DISPID_AMBIENT_DISPLAYNAME);
}

void ControlSite::release() {
    if (in_place_)
        in_place_->InPlaceDeactivate();
    if (object_) {
        object_->Close(OLECLOSE_NOSAVE);
        object_->SetClientSite(nullptr);
    }
    in_place_.Reset();
    object_.Reset();
    extender_.Reset();
}

STDMETHODIMP ControlSite::GetWindow(HWND* window) {
    *window = surroundings_.form;
    return S_OK;
}

STDMETHODIMP ControlSite::GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document,
                                           RECT* place, RECT* clip, OLEINPLACEFRAMEINFO* info) {
    surroundings_.frame.CopyTo(frame);
    *document = nullptr;
    *place = place_;
    *clip = place_;
    info->fMDIApp = surroundings_.mdi_frame != nullptr;
    info->hwndFrame = info->fMDIApp ? surroundings_.mdi_frame : surroundings_.form;
    info->haccel = nullptr;
    info->cAccelEntries = 0;
    return S_OK;
}

// The control asks for another size, say because its font is higher: it gets it.
STDMETHODIMP ControlSite::OnPosRectChange(const RECT* place) {
    place_ = *place;
    return in_place_ ? in_place_->SetObjectRects(&place_, &place_) : S_OK;
}

// There is one UI-active control on a form at most.
STDMETHODIMP ControlSite::OnUIActivate() {
    surroundings_.frame->deactivate_current();
    return S_OK;
}

STDMETHODIMP ControlSite::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                                 UINT*) {
    if (!result)
        return E_POINTER;
    VariantInit(result);
    switch (id) {
    case DISPID_AMBIENT_USERMODE:
        give(result, surroundings_.running);
        return S_OK;
    case DISPID_AMBIENT_DISPLAYNAME:
        give(result, name_);
        return S_OK;
    case DISPID_AMBIENT_FONT:
        give(result, surroundings_.font);
        return S_OK;
    default:
        return DISP_E_MEMBERNOTFOUND;
    }
}

STDMETHODIMP ControlSite::GetContainer(IOleContainer** container) {
    *container = nullptr;
    return E_NOINTERFACE;
}

STDMETHODIMP ControlSite::GetExtendedControl(IDispatch** object) {
    extender_.CopyTo(object);
    return extender_ ? S_OK : E_NOTIMPL;
}

STDMETHODIMP ControlSite::GetTypeInfoCount(UINT* count) {
    *count = 0;
    return S_OK;
}

} // namespace vellora::samples
