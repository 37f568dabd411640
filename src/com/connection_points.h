// The control's outgoing interfaces: its events and the notices of changed properties.
#pragma once

#include "com/connection_point.h"
#include "com/delegating.h"

#include <array>

namespace vellora::com {

class ConnectionPoints final : public Delegating<IConnectionPointContainer> {
public:
    ConnectionPoints(IUnknown* controlling, REFIID events_interface) noexcept;

    ConnectionPoint& events() noexcept { return points_[0]; }
    ConnectionPoint& property_notices() noexcept { return points_[1]; }
    void disconnect_all() noexcept;

    /// Raises an event. Arguments are in the order of the event's declaration.
    void fire(DISPID event, VARIANT* arguments, UINT count);
    void property_changed(DISPID property);
    /// False when a listener forbids the change.
    bool request_edit(DISPID property);

    STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints** out) noexcept override;
    STDMETHODIMP FindConnectionPoint(REFIID id, IConnectionPoint** out) noexcept override;

private:
    std::array<ConnectionPoint, 2> points_;
};

} // namespace vellora::com
