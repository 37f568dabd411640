#include "server/host_site.h"

#include "com/control_host.h"
#include "server/host_objects.h"

namespace vellora::server {

namespace {

WindowHandle handle_of(HWND window) { return reinterpret_cast<WindowHandle>(window); }

} // namespace

bool HostSite::user_mode() const { return host_.ambients().user_mode(); }

std::u16string HostSite::display_name() const { return host_.display_name(); }

FontRef HostSite::ambient_font() const { return to_font(host_.ambients().font().Get()); }

// Before a container that has no extender gave a size, it is the natural one.
float HostSite::extender_width() const { return host_.extender().width(host_.extent().pixels().cx); }

WindowHandle HostSite::container_window() const { return handle_of(host_.container_window()); }

WindowHandle HostSite::form_window() const { return handle_of(host_.extender().form_window()); }

bool HostSite::form_is_mdi_child() const { return host_.extender().form_is_mdi_child(); }

void HostSite::property_changed(std::u16string_view name) {
    host_.property_changed(name);
    host_.view_changed();
}

bool HostSite::may_change(std::u16string_view name) {
    return host_.may_change(name);
}

std::shared_ptr<void> HostSite::keep_alive() { return std::make_shared<com::Hold>(host_.hold()); }

} // namespace vellora::server
