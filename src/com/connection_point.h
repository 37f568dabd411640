// One outgoing interface with the sinks that listen to it.
#pragma once

#include "com/enumerator.h"
#include "com/ole.h"

#include <vector>

namespace vellora::com {

/// Has an identity of its own, but lives as long as its control.
class ConnectionPoint final : public IConnectionPoint {
public:
    /// Sinks of an event interface may answer to IDispatch only.
    enum class Sinks { exact, dispatch };

    ConnectionPoint(IUnknown* controlling, REFIID id, Sinks sinks) noexcept
        : controlling_(controlling), id_(id), sinks_(sinks) {}
    ConnectionPoint(const ConnectionPoint&) = delete;
    ConnectionPoint& operator=(const ConnectionPoint&) = delete;

    const IID& id() const noexcept { return id_; }
    DWORD connect(IUnknown* sink);
    void disconnect_all() noexcept;

    /// Calls `action` with every sink. The list is a copy, so that a sink may connect and disconnect inside
    /// the call; one that was disconnected meanwhile is left out.
    template <class Interface, class Action>
    void for_each(Action action) const {
        const std::vector<Connection> connections = connections_;
        for (const Connection& connection : connections)
            if (connected(connection.cookie))
                action(static_cast<Interface*>(connection.sink.Get()));
    }

    STDMETHODIMP QueryInterface(REFIID id, void** out) noexcept override;
    STDMETHODIMP_(ULONG) AddRef() noexcept override { return controlling_->AddRef(); }
    STDMETHODIMP_(ULONG) Release() noexcept override { return controlling_->Release(); }

    STDMETHODIMP GetConnectionInterface(IID* id) noexcept override;
    STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer** out) noexcept override;
    STDMETHODIMP Advise(IUnknown* sink, DWORD* cookie) noexcept override;
    STDMETHODIMP Unadvise(DWORD cookie) noexcept override;
    STDMETHODIMP EnumConnections(IEnumConnections** out) noexcept override;

private:
    bool connected(DWORD cookie) const noexcept;

    IUnknown* controlling_;
    IID id_;
    Sinks sinks_;
    std::vector<Connection> connections_; // each sink is kept as the interface it is called through
    DWORD last_cookie_ = 0;
};

} // namespace vellora::com
