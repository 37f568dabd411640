#include "support/container/site.h"

#include "support/container/form.h"

#include <algorithm>
#include <utility>

namespace vellora::test {

using Microsoft::WRL::ComPtr;

namespace {

LONG to_himetric(LONG pixels, LONG twips_per_pixel) {
    return MulDiv(pixels * twips_per_pixel, 2540, 1440);
}

SiteState make_state(Site* site, Form* form, const std::wstring& name, const RECT& place) {
    SiteState state;
    state.identity = site;
    state.form = form;
    state.name = name;
    state.place = place;
    return state;
}

} // namespace

Site::Site(Form* form, const std::wstring& name, const RECT& place)
    : state_(make_state(this, form, name, place)), ambients_(state_) {}

STDMETHODIMP Site::QueryInterface(REFIID id, void** object) {
    const auto is = [&](REFIID known) { return IsEqualIID(id, known) != 0; };
    IUnknown* part = nullptr;
    if (is(IID_IUnknown))
        part = this;
    else if (is(IID_IOleClientSite))
        part = &client_site_;
    else if (is(IID_IOleContainer) || is(IID_IParseDisplayName))
        part = &ole_container_;
    else if (is(IID_IOleControlSite))
        part = &control_site_;
    else if (is(IID_IOleInPlaceSiteEx) || is(IID_IOleInPlaceSite) || is(IID_IOleWindow))
        part = &in_place_site_;
    else if (is(IID_IPropertyNotifySink))
        part = &notify_sink_;
    else if (is(IID_IDispatch))
        part = &ambients_;
    if (std::any_of(state_.withheld.begin(), state_.withheld.end(), is))
        part = nullptr;
    state_.asked.push_back(id);
    *object = part;
    if (!part)
        return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

STDMETHODIMP_(ULONG) Site::Release() {
    const ULONG left = --references_;
    if (left == 0)
        delete this;
    return left;
}

void Site::take(ComPtr<IUnknown> control) {
    state_.control = std::move(control);
    events_->learn_names(state_.control.Get());
}

HRESULT Site::give_site() {
    const auto object = as<IOleObject>();
    return object ? object->SetClientSite(&client_site_) : E_NOINTERFACE;
}

HRESULT Site::take_site_away() {
    const auto object = as<IOleObject>();
    return object ? object->SetClientSite(nullptr) : E_NOINTERFACE;
}

HRESULT Site::init_new() {
    const auto persist = as<IPersistStreamInit>();
    return persist ? persist->InitNew() : E_NOINTERFACE;
}

HRESULT Site::load(PropertyBag& bag) {
    const auto persist = as<IPersistPropertyBag>();
    return persist ? persist->Load(&bag, nullptr) : E_NOINTERFACE;
}

HRESULT Site::save(PropertyBag& bag) {
    const auto persist = as<IPersistPropertyBag>();
    return persist ? persist->Save(&bag, TRUE, TRUE) : E_NOINTERFACE;
}

HRESULT Site::advise(REFIID connection, IUnknown* sink, DWORD* cookie) {
    const auto points = as<IConnectionPointContainer>();
    ComPtr<IConnectionPoint> point;
    if (!points)
        return E_NOINTERFACE;
    const HRESULT found = points->FindConnectionPoint(connection, &point);
    return FAILED(found) ? found : point->Advise(sink, cookie);
}

void Site::unadvise(REFIID connection, DWORD* cookie) {
    const auto points = as<IConnectionPointContainer>();
    ComPtr<IConnectionPoint> point;
    const DWORD value = std::exchange(*cookie, 0);
    if (points && value && SUCCEEDED(points->FindConnectionPoint(connection, &point)))
        point->Unadvise(value);
}

HRESULT Site::listen(bool as_event_interface) {
    event_id_ = event_interface(control());
    if (as_event_interface)
        events_->also_answer(event_id_);
    const HRESULT events = advise(event_id_, events_.Get(), &event_cookie_);
    const HRESULT notices = advise(IID_IPropertyNotifySink, &notify_sink_, &notify_cookie_);
    return FAILED(events) ? events : notices;
}

void Site::stop_listening() {
    unadvise(event_id_, &event_cookie_);
    unadvise(IID_IPropertyNotifySink, &notify_cookie_);
}

HRESULT Site::set_extent() {
    const SIZE factor = twips_per_pixel();
    SIZEL extent{to_himetric(state_.place.right - state_.place.left, factor.cx),
                 to_himetric(state_.place.bottom - state_.place.top, factor.cy)};
    const auto object = as<IOleObject>();
    return object ? object->SetExtent(DVASPECT_CONTENT, &extent) : E_NOINTERFACE;
}

HRESULT Site::verb(LONG verb) {
    const auto object = as<IOleObject>();
    if (!object || !state_.form)
        return E_UNEXPECTED;
    const RECT place = state_.place;
    return object->DoVerb(verb, nullptr, &client_site_, 0, state_.form->window(), &place);
}

HRESULT Site::ui_deactivate() {
    const auto object = as<IOleInPlaceObject>();
    return object ? object->UIDeactivate() : E_NOINTERFACE;
}

HRESULT Site::deactivate() {
    const auto object = as<IOleInPlaceObject>();
    return object ? object->InPlaceDeactivate() : E_NOINTERFACE;
}

HRESULT Site::move(const RECT& place) {
    state_.place = place;
    const HRESULT extent = set_extent();
    const auto object = as<IOleInPlaceObject>();
    if (!object)
        return extent;
    // The control may have asked for a place of its own meanwhile.
    state_.place = place;
    return object->SetObjectRects(&place, &place);
}

HRESULT Site::close() {
    const auto object = as<IOleObject>();
    return object ? object->Close(OLECLOSE_NOSAVE) : E_NOINTERFACE;
}

void Site::destroy() {
    const ComPtr<IUnknown> alive(this);
    if (!state_.control)
        return;
    deactivate();
    stop_listening();
    close();
    take_site_away();
    state_.control.Reset();
}

} // namespace vellora::test
