// IViewObjectEx and the two before it: the control's face where its window is not on the screen.
#pragma once

#include "com/delegating.h"

namespace vellora::com {

class ControlHost;

class View final : public Delegating<IViewObjectEx> {
public:
    explicit View(ControlHost& host);

    STDMETHODIMP Draw(DWORD aspect, LONG index, void* aspect_info, DVTARGETDEVICE* device, HDC target,
                      HDC draw, LPCRECTL bounds, LPCRECTL metafile_bounds,
                      BOOL(STDMETHODCALLTYPE* go_on)(ULONG_PTR), ULONG_PTR go_on_argument) noexcept override;
    STDMETHODIMP GetColorSet(DWORD aspect, LONG index, void* aspect_info, DVTARGETDEVICE* device, HDC target,
                             LOGPALETTE** colors) noexcept override;
    STDMETHODIMP Freeze(DWORD aspect, LONG index, void* aspect_info, DWORD* freeze) noexcept override;
    STDMETHODIMP Unfreeze(DWORD freeze) noexcept override;
    STDMETHODIMP SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) noexcept override;
    STDMETHODIMP GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) noexcept override;

    STDMETHODIMP GetExtent(DWORD aspect, LONG index, DVTARGETDEVICE* device, SIZEL* extent) noexcept override;

    STDMETHODIMP GetRect(DWORD aspect, RECTL* rect) noexcept override;
    STDMETHODIMP GetViewStatus(DWORD* status) noexcept override;
    STDMETHODIMP QueryHitPoint(DWORD aspect, const RECT* bounds, POINT point, LONG close_by,
                               DWORD* result) noexcept override;
    STDMETHODIMP QueryHitRect(DWORD aspect, const RECT* bounds, const RECT* rect, LONG close_by,
                              DWORD* result) noexcept override;
    STDMETHODIMP GetNaturalExtent(DWORD aspect, LONG index, DVTARGETDEVICE* device, HDC target,
                                  DVEXTENTINFO* info, SIZEL* extent) noexcept override;

private:
    ControlHost& host_;
};

} // namespace vellora::com
