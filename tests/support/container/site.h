// The site of one control on a form, and the steps a host takes with the control: create, initialise or load,
// place, activate, deactivate, save and end, each on its own so that a test can take them in any order.
#pragma once

#include "support/container/ambients.h"
#include "support/container/client_site.h"
#include "support/container/control_site.h"
#include "support/container/event_sink.h"
#include "support/container/in_place_site.h"
#include "support/container/notify_sink.h"
#include "support/container/property_bag.h"

#include <string>

#include <wrl/client.h>

namespace vellora::test {

class Site final : public IUnknown {
public:
    Site(Form* form, const std::wstring& name, const RECT& place);
    Site(const Site&) = delete;
    Site& operator=(const Site&) = delete;

    STDMETHODIMP QueryInterface(REFIID id, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override;
    ULONG references() const noexcept { return references_; }

    SiteState& state() noexcept { return state_; }
    CallLog& log() noexcept { return state_.log; }
    Ambients& ambients() noexcept { return ambients_; }
    EventSink& events() noexcept { return *events_.Get(); }
    /// Pixels, relative to the form.
    const RECT& place() const noexcept { return state_.place; }

    /// The control, null before creation and after the end; and an interface of it, null when it lacks that.
    IUnknown* control() const noexcept { return state_.control.Get(); }
    template <class Interface>
    Microsoft::WRL::ComPtr<Interface> as() const {
        Microsoft::WRL::ComPtr<Interface> result;
        if (state_.control)
            state_.control.As(&result);
        return result;
    }

    // Steps. Each returns what the control answered.
    void take(Microsoft::WRL::ComPtr<IUnknown> control);
    HRESULT give_site();
    HRESULT take_site_away();
    HRESULT init_new();
    HRESULT load(PropertyBag& bag);
    HRESULT save(PropertyBag& bag);
    /// Listens to events and property changes. `as_event_interface`: as a host that implements the event
    /// interface itself, not only IDispatch.
    HRESULT listen(bool as_event_interface = false);
    void stop_listening();
    HRESULT set_extent();
    HRESULT verb(LONG verb);
    HRESULT activate() { return verb(OLEIVERB_INPLACEACTIVATE); }
    HRESULT ui_activate() { return verb(OLEIVERB_UIACTIVATE); }
    HRESULT ui_deactivate();
    HRESULT deactivate();
    /// Gives the control another place: extent first, then the rectangle.
    HRESULT move(const RECT& place);
    HRESULT close();

    /// Everything from deactivation to the last reference; safe inside an event of the control.
    void destroy();
    /// The form is gone; the control may live on.
    void lose_form() { state_.form = nullptr; }

private:
    ~Site() = default;
    HRESULT advise(REFIID connection, IUnknown* sink, DWORD* cookie);
    void unadvise(REFIID connection, DWORD* cookie);

    std::atomic<ULONG> references_{0};
    SiteState state_;
    ClientSite client_site_{state_};
    OleContainer ole_container_{state_};
    ControlSite control_site_{state_};
    InPlaceSite in_place_site_{state_};
    NotifySink notify_sink_{state_};
    Ambients ambients_;
    Microsoft::WRL::ComPtr<EventSink> events_{new EventSink};
    IID event_id_ = IID_NULL;
    DWORD event_cookie_ = 0;
    DWORD notify_cookie_ = 0;
};

} // namespace vellora::test
