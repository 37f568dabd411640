// The saved half of a control's life: a new one gets its defaults, a loaded one its settings, and changes
// make it want saving again.
#pragma once

#include "com/control_client.h"

namespace vellora::com {

class Persistence {
public:
    bool dirty() const noexcept { return dirty_; }
    void set_dirty(bool dirty) noexcept { dirty_ = dirty; }
    /// What was written counts as saved, if the container says so.
    void saved(bool clear_dirty) noexcept { dirty_ = dirty_ && !clear_dirty; }

    /// Without a site the defaults wait for one, since they come from the container. False when the container
    /// has asked before or has loaded the control.
    bool initialise_new(ControlClient& client, bool has_site);
    void site_given(ControlClient& client);
    /// For containers that never ask for it: a control that is used has its defaults.
    void ensure_initialised(ControlClient& client);
    void load(ControlClient& client, PropertyStore& store);

private:
    bool asked_ = false;
    bool initialised_ = false;
    bool dirty_ = false;
};

} // namespace vellora::com
