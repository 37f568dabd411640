#include "com/connection_point.h"

#include "com/guard.h"

#include <algorithm>
#include <utility>

namespace vellora::com {

DWORD ConnectionPoint::connect(IUnknown* sink) {
    need(sink);
    void* wanted = nullptr;
    if (FAILED(sink->QueryInterface(id_, &wanted)) && sinks_ == Sinks::dispatch)
        sink->QueryInterface(IID_IDispatch, &wanted);
    if (!wanted)
        throw ComFailure(CONNECT_E_CANNOTCONNECT);
    Connection connection;
    connection.sink = adopt(static_cast<IUnknown*>(wanted));
    connection.cookie = ++last_cookie_;
    connections_.push_back(std::move(connection));
    return last_cookie_;
}

void ConnectionPoint::disconnect_all() noexcept {
    const std::vector<Connection> removed = std::exchange(connections_, {});
}

STDMETHODIMP ConnectionPoint::QueryInterface(REFIID id, void** out) noexcept {
    if (!out)
        return E_POINTER;
    *out = nullptr;
    if (id != IID_IConnectionPoint && id != IID_IUnknown)
        return E_NOINTERFACE;
    *out = static_cast<IConnectionPoint*>(this);
    AddRef();
    return S_OK;
}

STDMETHODIMP ConnectionPoint::GetConnectionInterface(IID* id) noexcept {
    return guard([&] {
        need(id);
        *id = id_;
    });
}

STDMETHODIMP ConnectionPoint::GetConnectionPointContainer(IConnectionPointContainer** out) noexcept {
    if (!out)
        return E_POINTER;
    return controlling_->QueryInterface(IID_PPV_ARGS(out));
}

STDMETHODIMP ConnectionPoint::Advise(IUnknown* sink, DWORD* cookie) noexcept {
    return guard([&] {
        need(cookie);
        *cookie = 0;
        *cookie = connect(sink);
    });
}

STDMETHODIMP ConnectionPoint::Unadvise(DWORD cookie) noexcept {
    const auto found = std::find_if(connections_.begin(), connections_.end(),
                                    [&](const Connection& one) { return one.cookie == cookie; });
    if (found == connections_.end())
        return CONNECT_E_NOCONNECTION;
    // Letting go of the sink may come back here, so it happens when the list is whole again.
    const Connection removed = std::move(*found);
    connections_.erase(found);
    return S_OK;
}

STDMETHODIMP ConnectionPoint::EnumConnections(IEnumConnections** out) noexcept {
    return guard([&] {
        need(out);
        return Enumerator<IEnumConnections, CONNECTDATA, Connection>::create(connections_, out);
    });
}

bool ConnectionPoint::connected(DWORD cookie) const noexcept {
    return std::any_of(connections_.begin(), connections_.end(),
                       [&](const Connection& one) { return one.cookie == cookie; });
}

} // namespace vellora::com
