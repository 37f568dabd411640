#include "com/ole_object.h"

#include "com/bstr.h"
#include "com/control_host.h"
#include "com/extent.h"
#include "com/verbs.h"

namespace vellora::com {

OleObject::OleObject(ControlHost& host) : Delegating(host.controlling()), host_(host) {}

STDMETHODIMP OleObject::SetClientSite(IOleClientSite* site) noexcept {
    return guard([&] { host_.set_client_site(site); });
}

STDMETHODIMP OleObject::GetClientSite(IOleClientSite** site) noexcept {
    return guard([&] {
        need(site);
        *site = host_.site().get().Detach();
    });
}

STDMETHODIMP OleObject::SetHostNames(LPCOLESTR, LPCOLESTR) noexcept {
    return S_OK;
}

STDMETHODIMP OleObject::Close(DWORD save_option) noexcept {
    const Hold alive = host_.hold();
    return guard([&] { close(host_, save_option); });
}

STDMETHODIMP OleObject::SetMoniker(DWORD, IMoniker*) noexcept {
    return E_NOTIMPL;
}

STDMETHODIMP OleObject::GetMoniker(DWORD, DWORD, IMoniker** moniker) noexcept {
    return guard([&] {
        need(moniker);
        *moniker = nullptr;
        return E_NOTIMPL;
    });
}

STDMETHODIMP OleObject::InitFromData(IDataObject*, BOOL, DWORD) noexcept {
    return E_NOTIMPL;
}

STDMETHODIMP OleObject::GetClipboardData(DWORD, IDataObject** data) noexcept {
    return guard([&] {
        need(data);
        *data = nullptr;
        return E_NOTIMPL;
    });
}

STDMETHODIMP OleObject::DoVerb(LONG verb, LPMSG, IOleClientSite*, LONG, HWND parent,
                               LPCRECT position) noexcept {
    const Hold alive = host_.hold();
    return guard([&] { return do_verb(host_, verb, {parent, position}); });
}

STDMETHODIMP OleObject::EnumVerbs(IEnumOLEVERB** verbs) noexcept {
    return guard([&] {
        need(verbs);
        *verbs = nullptr;
        return OleRegEnumVerbs(host_.control_class().class_id, verbs);
    });
}

STDMETHODIMP OleObject::Update() noexcept {
    return S_OK;
}

STDMETHODIMP OleObject::IsUpToDate() noexcept {
    return S_OK;
}

STDMETHODIMP OleObject::GetUserClassID(CLSID* class_id) noexcept {
    return guard([&] {
        need(class_id);
        *class_id = host_.control_class().class_id;
    });
}

STDMETHODIMP OleObject::GetUserType(DWORD, LPOLESTR* name) noexcept {
    return guard([&] {
        need(name);
        *name = make_task_text(narrow_view(host_.control_class().user_type));
    });
}

STDMETHODIMP OleObject::SetExtent(DWORD aspect, SIZEL* extent) noexcept {
    const Hold alive = host_.hold();
    return guard([&] { set_extent(host_, aspect, extent); });
}

STDMETHODIMP OleObject::GetExtent(DWORD aspect, SIZEL* extent) noexcept {
    return guard([&] { get_extent(host_, aspect, extent); });
}

STDMETHODIMP OleObject::Advise(IAdviseSink* sink, DWORD* connection) noexcept {
    return guard([&] {
        need(connection);
        return host_.views().ole_advises()->Advise(sink, connection);
    });
}

STDMETHODIMP OleObject::Unadvise(DWORD connection) noexcept {
    return guard([&] { return host_.views().ole_advises()->Unadvise(connection); });
}

STDMETHODIMP OleObject::EnumAdvise(IEnumSTATDATA** advises) noexcept {
    return guard([&] {
        need(advises);
        return host_.views().ole_advises()->EnumAdvise(advises);
    });
}

STDMETHODIMP OleObject::GetMiscStatus(DWORD aspect, DWORD* status) noexcept {
    return guard([&] {
        need(status);
        *status = 0;
        need_content(aspect);
        *status = misc_status;
    });
}

STDMETHODIMP OleObject::SetColorScheme(LOGPALETTE*) noexcept {
    return E_NOTIMPL;
}

} // namespace vellora::com
