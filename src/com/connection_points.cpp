#include "com/connection_points.h"

#include "com/guard.h"
#include "com/variant.h"

#include <algorithm>

namespace vellora::com {

ConnectionPoints::ConnectionPoints(IUnknown* controlling, REFIID events_interface) noexcept
    : Delegating(controlling), points_{
                                   {{controlling, events_interface, ConnectionPoint::Sinks::dispatch},
                                    {controlling, IID_IPropertyNotifySink, ConnectionPoint::Sinks::exact}}} {}

void ConnectionPoints::disconnect_all() noexcept {
    for (ConnectionPoint& point : points_)
        point.disconnect_all();
}

void ConnectionPoints::fire(DISPID event, VARIANT* arguments, UINT count) {
    std::reverse(arguments, arguments + count); // the last argument stands first
    DISPPARAMS parameters = {arguments, nullptr, count, 0};
    events().for_each<IDispatch>([&](IDispatch* sink) {
        Variant result;
        sink->Invoke(event, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, result.put(),
                     nullptr, nullptr);
    });
}

void ConnectionPoints::property_changed(DISPID property) {
    property_notices().for_each<IPropertyNotifySink>(
        [&](IPropertyNotifySink* sink) { sink->OnChanged(property); });
}

bool ConnectionPoints::request_edit(DISPID property) {
    bool allowed = true;
    property_notices().for_each<IPropertyNotifySink>(
        [&](IPropertyNotifySink* sink) { allowed = sink->OnRequestEdit(property) != S_FALSE && allowed; });
    return allowed;
}

STDMETHODIMP ConnectionPoints::EnumConnectionPoints(IEnumConnectionPoints** out) noexcept {
    return guard([&] {
        need(out);
        std::vector<ComPtr<IConnectionPoint>> points;
        for (ConnectionPoint& point : points_)
            points.emplace_back(&point);
        return Enumerator<IEnumConnectionPoints, IConnectionPoint*, ComPtr<IConnectionPoint>>::create(
            std::move(points), out);
    });
}

STDMETHODIMP ConnectionPoints::FindConnectionPoint(REFIID id, IConnectionPoint** out) noexcept {
    return guard([&] {
        need(out);
        *out = nullptr;
        const auto found = std::find_if(points_.begin(), points_.end(),
                                        [&](const ConnectionPoint& point) { return point.id() == id; });
        if (found == points_.end())
            throw ComFailure(CONNECT_E_NOCONNECTION);
        found->AddRef();
        *out = &*found;
    });
}

} // namespace vellora::com
