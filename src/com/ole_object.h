// IOleObject: the container's main handle on the control. Verbs, extent, closing, advice.
#pragma once

#include "com/delegating.h"

namespace vellora::com {

class ControlHost;

class OleObject final : public Delegating<IOleObject> {
public:
    explicit OleObject(ControlHost& host);

    STDMETHODIMP SetClientSite(IOleClientSite* site) noexcept override;
    STDMETHODIMP GetClientSite(IOleClientSite** site) noexcept override;
    STDMETHODIMP SetHostNames(LPCOLESTR application, LPCOLESTR object) noexcept override;
    STDMETHODIMP Close(DWORD save_option) noexcept override;
    STDMETHODIMP SetMoniker(DWORD which, IMoniker* moniker) noexcept override;
    STDMETHODIMP GetMoniker(DWORD assign, DWORD which, IMoniker** moniker) noexcept override;
    STDMETHODIMP InitFromData(IDataObject* data, BOOL creation, DWORD reserved) noexcept override;
    STDMETHODIMP GetClipboardData(DWORD reserved, IDataObject** data) noexcept override;
    STDMETHODIMP DoVerb(LONG verb, LPMSG message, IOleClientSite* site, LONG index, HWND parent,
                        LPCRECT position) noexcept override;
    STDMETHODIMP EnumVerbs(IEnumOLEVERB** verbs) noexcept override;
    STDMETHODIMP Update() noexcept override;
    STDMETHODIMP IsUpToDate() noexcept override;
    STDMETHODIMP GetUserClassID(CLSID* class_id) noexcept override;
    STDMETHODIMP GetUserType(DWORD form, LPOLESTR* name) noexcept override;
    STDMETHODIMP SetExtent(DWORD aspect, SIZEL* extent) noexcept override;
    STDMETHODIMP GetExtent(DWORD aspect, SIZEL* extent) noexcept override;
    STDMETHODIMP Advise(IAdviseSink* sink, DWORD* connection) noexcept override;
    STDMETHODIMP Unadvise(DWORD connection) noexcept override;
    STDMETHODIMP EnumAdvise(IEnumSTATDATA** advises) noexcept override;
    STDMETHODIMP GetMiscStatus(DWORD aspect, DWORD* status) noexcept override;
    STDMETHODIMP SetColorScheme(LOGPALETTE* palette) noexcept override;

private:
    ControlHost& host_;
};

} // namespace vellora::com
