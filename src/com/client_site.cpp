#include "com/client_site.h"

namespace vellora::com {

namespace {

template <class Interface>
ComPtr<Interface> offered(IUnknown* object) noexcept {
    ComPtr<Interface> found;
    if (object)
        object->QueryInterface(IID_PPV_ARGS(&found));
    return found;
}

} // namespace

void ClientSite::set(IOleClientSite* site) noexcept {
    site_ = site;
    control_site_ = offered<IOleControlSite>(site);
    ambients_ = offered<IDispatch>(site);
}

ComPtr<IOleInPlaceSite> ClientSite::in_place_site() const noexcept {
    return offered<IOleInPlaceSite>(site_.Get());
}

HWND ClientSite::window() const noexcept {
    const ComPtr<IOleInPlaceSite> site = in_place_site();
    HWND window = nullptr;
    if (!site || FAILED(site->GetWindow(&window)))
        return nullptr;
    return window;
}

} // namespace vellora::com
