// Everything the container and the platform do for one control, as its client sees it; and what the
// control's COM interfaces share.
#pragma once

#include "com/activation.h"
#include "com/ambients.h"
#include "com/client_site.h"
#include "com/connection_points.h"
#include "com/control_class.h"
#include "com/control_client.h"
#include "com/control_size.h"
#include "com/event_argument.h"
#include "com/extender.h"
#include "com/guard.h"
#include "com/hold.h"
#include "com/object_format.h"
#include "com/parking.h"
#include "com/persistence.h"
#include "com/type_library.h"
#include "com/view_advises.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace vellora::com {

class ControlHost {
public:
    /// `inner` is the control's own identity, `controlling` the one it shows: the same unless aggregated.
    ControlHost(const ControlClass& control_class, IUnknown* inner, IUnknown* controlling);
    ControlHost(const ControlHost&) = delete;
    ControlHost& operator=(const ControlHost&) = delete;
    ~ControlHost();

    const ControlClass& control_class() const noexcept { return control_class_; }
    const std::shared_ptr<const TypeLibrary>& types() const noexcept { return types_; }
    IUnknown* controlling() const noexcept { return controlling_; }
    /// To be taken before anything that may end the control: events, calls into the container, messages.
    Hold hold() const noexcept;

    // ---- for the client ----------------------------------------------------------------------------------

    HWND parking_window() const noexcept { return parking_.window(); }
    /// In pixels.
    const SIZE& size() const noexcept { return size_.pixels(); }
    /// Asks the container for another size in pixels. on_resized has been called before this returns true;
    /// false when the container keeps its size.
    bool request_size(SIZE pixels);
    /// The user has begun to work with the control: one of its windows got the focus.
    void request_ui_activation();
    /// The focus went to a window that is not the control's.
    void focus_left();
    /// Which keys the control eats has changed.
    void control_info_changed();
    /// The control's face is no longer what was drawn: tells those who keep a picture of it.
    void view_changed();

    const Ambients& ambients() const noexcept { return ambients_; }
    const Extender& extender() const noexcept { return extender_; }
    /// Name of the instance: the container's, else its extender's; empty where neither knows one.
    std::u16string display_name() const;
    /// The window the container placed the control in; null when it has none.
    HWND container_window() const noexcept { return site_.window(); }

    /// Marks the control as unsaved and tells the listeners. A name that is no member is an error of the
    /// program and only marks it.
    void property_changed(std::u16string_view name);
    /// False when a listener forbids the property to change.
    bool may_change(std::u16string_view name);

    /// Gives a control its defaults that is used although its container neither initialised nor loaded it.
    void ensure_initialised() { persistence_.ensure_initialised(client()); }

    /// Raises an event with arguments in declared order, made by by_value and by_reference. The control is
    /// held meanwhile, but may be without a container afterwards.
    template <class... Arguments>
    void fire(DISPID event, Arguments... arguments) {
        VARIANT list[sizeof...(arguments) + 1] = {arguments...};
        fire_list(event, list, sizeof...(arguments));
    }

    // ---- for the control's interfaces
    // ----------------------------------------------------------------------

    void set_client(ControlClient* client) noexcept { client_ = client; }
    ControlClient& client();
    ClientSite& site() noexcept { return site_; }
    Activation& activation() noexcept { return activation_; }
    ViewAdvises& views() noexcept { return views_; }
    Persistence& persistence() noexcept { return persistence_; }
    ConnectionPoints& connections() noexcept { return connections_; }
    ControlSize& extent();
    const Parking& parking() const noexcept { return parking_; }

    void set_client_site(IOleClientSite* site);
    /// Gives the window a size and, with `corner`, a place in its parent.
    void apply_size(SIZE pixels, const POINT* corner);
    void freeze_events(bool freeze) noexcept;
    StoredObjects stored_objects() const noexcept { return stored_objects_; }
    void restrict_stored_objects(bool restrict) noexcept {
        stored_objects_ = restrict ? StoredObjects::standard : StoredObjects::any;
    }
    /// Cuts all connections, before the client goes.
    void end() noexcept;

private:
    std::optional<DISPID> property_id(std::u16string_view name) const;
    void fire_list(DISPID event, VARIANT* arguments, UINT count);
    void request_extent(SIZE pixels);
    void tell_changed_extent();

    const ControlClass& control_class_;
    IUnknown* inner_;
    IUnknown* controlling_;
    std::shared_ptr<const TypeLibrary> types_;
    ControlClient* client_ = nullptr;
    bool ending_ = false;

    Parking parking_;
    ClientSite site_;
    Ambients ambients_{site_};
    Extender extender_{site_};
    ControlSize size_;
    bool sized_ = false;
    int frozen_events_ = 0;
    StoredObjects stored_objects_ = StoredObjects::any;
    ViewAdvises views_;
    Persistence persistence_;
    ConnectionPoints connections_;
    Activation activation_{*this};
};

} // namespace vellora::com
