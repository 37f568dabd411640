#include "com/control_host.h"

#include "com/bstr.h"

namespace vellora::com {

ControlHost::ControlHost(const ControlClass& control_class, IUnknown* inner, IUnknown* controlling)
    : control_class_(control_class), inner_(inner), controlling_(controlling),
      types_(TypeLibrary::shared(control_class.default_interface)),
      connections_(controlling, control_class.events_interface) {}

ControlHost::~ControlHost() = default;

Hold ControlHost::hold() const noexcept {
    return ending_ ? Hold() : Hold(inner_, controlling_);
}

ControlClient& ControlHost::client() {
    if (!client_)
        throw ComFailure(E_UNEXPECTED);
    return *client_;
}

bool ControlHost::request_size(SIZE pixels) {
    if (sized_ && same_size(pixels, size()))
        return true;
    const Hold alive = hold();
    if (activation_.in_place())
        activation_.request_size(pixels);
    else
        request_extent(pixels);
    return same_size(pixels, size());
}

void ControlHost::request_extent(SIZE pixels) {
    apply_size(pixels, nullptr);
    tell_changed_extent();
}

void ControlHost::tell_changed_extent() {
    if (const ComPtr<IOleClientSite> site = site_.get())
        site->RequestNewObjectLayout();
    view_changed();
}

void ControlHost::request_ui_activation() {
    if (ending_ || !activation_.in_place() || ambients_.ui_dead())
        return;
    const Hold alive = hold();
    // A site that refuses leaves the control usable all the same.
    guard([&] { activation_.activate_ui(Activation::Focus::keep); });
    activation_.tell_focus(true);
}

void ControlHost::focus_left() {
    const Hold alive = hold();
    activation_.tell_focus(false);
}

void ControlHost::control_info_changed() {
    if (ending_)
        return;
    const Hold alive = hold();
    if (const ComPtr<IOleControlSite> site = site_.control_site())
        site->OnControlInfoChanged();
}

void ControlHost::view_changed() {
    if (ending_)
        return;
    const Hold alive = hold();
    // In place the window shows the change by itself.
    if (!activation_.in_place())
        views_.view_changed();
    views_.data_changed(controlling_);
}

std::u16string ControlHost::display_name() const {
    std::u16string name = ambients_.display_name();
    if (name.empty())
        name = extender_.name();
    return name;
}

void ControlHost::property_changed(std::u16string_view name) {
    persistence_.changed();
    if (ending_)
        return;
    const Hold alive = hold();
    if (const std::optional<DISPID> property = property_id(name))
        connections_.property_changed(*property);
}

bool ControlHost::may_change(std::u16string_view name) {
    if (ending_)
        return true;
    const Hold alive = hold();
    const std::optional<DISPID> property = property_id(name);
    return !property || connections_.request_edit(*property);
}

std::optional<DISPID> ControlHost::property_id(std::u16string_view name) const {
    const std::wstring text = wide(name);
    auto names = const_cast<LPOLESTR>(text.c_str());
    DISPID property = DISPID_UNKNOWN;
    const HRESULT found = types_->default_interface().type->GetIDsOfNames(&names, 1, &property);
    return SUCCEEDED(found) ? std::optional(property) : std::nullopt;
}

ControlSize& ControlHost::extent() {
    // A container may ask before it ever set a size.
    if (!sized_ && size().cx == 0 && size().cy == 0)
        size_.set_pixels(client().natural_size());
    return size_;
}

void ControlHost::set_client_site(IOleClientSite* site) {
    const Hold alive = hold();
    if (site != site_.get().Get())
        activation_.deactivate();
    site_.set(site);
    if (!site)
        return;
    persistence_.site_given(client());
    client().on_ambient_changed(DISPID_UNKNOWN);
}

void ControlHost::apply_size(SIZE pixels, const POINT* corner) {
    const bool changed = !sized_ || !same_size(pixels, size());
    sized_ = true;
    // Known before the window hears of it: its layout may ask for yet another size.
    size_.set_pixels(pixels);
    const POINT at = corner ? *corner : POINT{};
    const UINT keep = SWP_NOZORDER | SWP_NOACTIVATE | (corner ? 0U : SWP_NOMOVE);
    SetWindowPos(client().window(), nullptr, at.x, at.y, size().cx, size().cy, keep);
    // The container is not to suffer from a layout that fails: the control has its size in any case.
    if (changed)
        guard([&] { client().on_resized(); });
}

void ControlHost::freeze_events(bool freeze) noexcept {
    if (freeze)
        ++frozen_events_;
    else if (frozen_events_ > 0)
        --frozen_events_;
}

void ControlHost::end() noexcept {
    ending_ = true;
    guard([&] { activation_.deactivate(); });
    connections_.disconnect_all();
    views_.clear();
    site_.set(nullptr);
}

void ControlHost::fire_list(DISPID event, VARIANT* arguments, UINT count) {
    if (ending_ || frozen_events_ > 0)
        return;
    const Hold alive = hold();
    connections_.fire(event, arguments, count);
}

} // namespace vellora::com
