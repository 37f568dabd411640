// The container's place for this control, with the doors it offers there.
#pragma once

#include "com/ole.h"

namespace vellora::com {

/// Accessors give references of their own, since any call into a container may take the site away.
class ClientSite {
public:
    void set(IOleClientSite* site) noexcept;

    ComPtr<IOleClientSite> get() const noexcept { return site_; }
    /// Null where the container has none.
    ComPtr<IOleControlSite> control_site() const noexcept { return control_site_; }
    ComPtr<IDispatch> ambient_properties() const noexcept { return ambients_; }
    ComPtr<IOleInPlaceSite> in_place_site() const noexcept;
    /// The window the container gives its controls; null before there is one.
    HWND window() const noexcept;

private:
    ComPtr<IOleClientSite> site_;
    ComPtr<IOleControlSite> control_site_;
    ComPtr<IDispatch> ambients_;
};

} // namespace vellora::com
