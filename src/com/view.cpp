#include "com/view.h"

#include "com/control_host.h"
#include "com/extent.h"
#include "com/face.h"

namespace vellora::com {

namespace {

/// The whole control is hit or nothing.
void report_hit(bool hit, DWORD* result) {
    *result = hit ? HITRESULT_HIT : HITRESULT_OUTSIDE;
}

} // namespace

View::View(ControlHost& host) : Delegating(host.controlling()), host_(host) {}

STDMETHODIMP View::Draw(DWORD aspect, LONG, void*, DVTARGETDEVICE*, HDC, HDC draw, LPCRECTL bounds, LPCRECTL,
                        BOOL(STDMETHODCALLTYPE*)(ULONG_PTR), ULONG_PTR) noexcept {
    const Hold alive = host_.hold();
    return guard([&] {
        need_content(aspect);
        if (!draw || !bounds)
            throw ComFailure(E_INVALIDARG);
        draw_face(host_, draw, {bounds->left, bounds->top, bounds->right, bounds->bottom});
    });
}

STDMETHODIMP View::GetColorSet(DWORD, LONG, void*, DVTARGETDEVICE*, HDC, LOGPALETTE** colors) noexcept {
    return guard([&] {
        need(colors);
        *colors = nullptr;
        return S_FALSE;
    });
}

STDMETHODIMP View::Freeze(DWORD, LONG, void*, DWORD*) noexcept {
    return E_NOTIMPL;
}

STDMETHODIMP View::Unfreeze(DWORD) noexcept {
    return E_NOTIMPL;
}

STDMETHODIMP View::SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) noexcept {
    const Hold alive = host_.hold();
    return guard([&] { host_.views().set_view_sink(aspects, flags, sink); });
}

STDMETHODIMP View::GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) noexcept {
    return guard([&] { host_.views().view_sink(aspects, flags, sink); });
}

STDMETHODIMP View::GetExtent(DWORD aspect, LONG, DVTARGETDEVICE*, SIZEL* extent) noexcept {
    return guard([&] { get_extent(host_, aspect, extent); });
}

STDMETHODIMP View::GetRect(DWORD aspect, RECTL* rect) noexcept {
    return guard([&] {
        need(rect);
        *rect = {};
        SIZEL extent = {};
        get_extent(host_, aspect, &extent);
        *rect = {0, 0, extent.cx, extent.cy};
    });
}

STDMETHODIMP View::GetViewStatus(DWORD* status) noexcept {
    return guard([&] {
        need(status);
        *status = view_status;
    });
}

STDMETHODIMP View::QueryHitPoint(DWORD aspect, const RECT* bounds, POINT point, LONG,
                                 DWORD* result) noexcept {
    return guard([&] {
        need(bounds);
        need(result);
        need_content(aspect);
        report_hit(PtInRect(bounds, point) != FALSE, result);
    });
}

STDMETHODIMP View::QueryHitRect(DWORD aspect, const RECT* bounds, const RECT* rect, LONG,
                                DWORD* result) noexcept {
    return guard([&] {
        need(bounds);
        need(rect);
        need(result);
        need_content(aspect);
        RECT common = {};
        report_hit(IntersectRect(&common, bounds, rect) != FALSE, result);
    });
}

STDMETHODIMP View::GetNaturalExtent(DWORD aspect, LONG, DVTARGETDEVICE*, HDC, DVEXTENTINFO* info,
                                    SIZEL* extent) noexcept {
    return guard([&] {
        need(info);
        need(extent);
        *extent = {};
        need_content(aspect);
        if (info->dwExtentMode != DVEXTENT_CONTENT)
            throw ComFailure(E_NOTIMPL);
        *extent = to_himetric(host_.client().natural_size());
    });
}

} // namespace vellora::com
