#include "support/container/quick_host.h"

namespace vellora::test {

using Microsoft::WRL::ComPtr;

HRESULT quick_activate(Site& site, IAdviseSinkEx* view_sink, QACONTROL& answer) {
    ComPtr<IOleClientSite> client_site;
    ComPtr<IPropertyNotifySink> notices;
    site.QueryInterface(IID_PPV_ARGS(&client_site));
    site.QueryInterface(IID_PPV_ARGS(&notices));
    QACONTAINER container{};
    container.cbSize = sizeof container;
    container.pClientSite = client_site.Get();
    container.pAdviseSink = view_sink;
    container.pPropertyNotifySink = notices.Get();
    container.pUnkEventSink = &site.events();
    answer = {};
    answer.cbSize = sizeof answer;
    const auto control = site.as<IQuickActivate>();
    return control ? control->QuickActivate(&container, &answer) : E_NOINTERFACE;
}

} // namespace vellora::test
