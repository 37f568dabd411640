#include "com/quick_activate.h"

#include "com/control_host.h"
#include "com/extent.h"
#include "com/face.h"

namespace vellora::com {

QuickActivation::QuickActivation(ControlHost& host) : Delegating(host.controlling()), host_(host) {}

STDMETHODIMP QuickActivation::QuickActivate(QACONTAINER* container, QACONTROL* control) noexcept {
    const Hold alive = host_.hold();
    return guard([&] {
        need(container);
        need(control);
        *control = {};
        control->cbSize = sizeof *control;
        control->dwMiscStatus = misc_status;
        control->dwViewStatus = view_status;
        host_.set_client_site(container->pClientSite);
        if (container->pAdviseSink)
            host_.views().set_view_sink(DVASPECT_CONTENT, 0, container->pAdviseSink);
        connect_sinks(*container, *control);
    });
}

void QuickActivation::connect_sinks(const QACONTAINER& container, QACONTROL& control) {
    // A sink that does not connect leaves no cookie; the container can do without it.
    const auto connect = [](ConnectionPoint& point, IUnknown* sink, DWORD& cookie) {
        if (sink)
            guard([&] { cookie = point.connect(sink); });
    };
    connect(host_.connections().property_notices(), container.pPropertyNotifySink,
            control.dwPropNotifyCookie);
    connect(host_.connections().events(), container.pUnkEventSink, control.dwEventCookie);
}

STDMETHODIMP QuickActivation::SetContentExtent(LPSIZEL extent) noexcept {
    const Hold alive = host_.hold();
    return guard([&] { set_extent(host_, DVASPECT_CONTENT, extent); });
}

STDMETHODIMP QuickActivation::GetContentExtent(LPSIZEL extent) noexcept {
    return guard([&] { get_extent(host_, DVASPECT_CONTENT, extent); });
}

} // namespace vellora::com
