// The container as the behaviour sees it.
#pragma once

#include "host/site.h"

namespace vellora::com {
class ControlHost;
}

namespace vellora::server {

class HostSite final : public Site {
public:
    explicit HostSite(com::ControlHost& host) : host_(host) {}

    bool user_mode() const override;
    std::u16string display_name() const override;
    FontRef ambient_font() const override;
    float extender_width() const override;
    WindowHandle container_window() const override;
    WindowHandle form_window() const override;
    bool form_is_mdi_child() const override;
    void property_changed(std::u16string_view name) override;
    bool may_change(std::u16string_view name) override;
    std::shared_ptr<void> keep_alive() override;

private:
    com::ControlHost& host_;
};

} // namespace vellora::server
