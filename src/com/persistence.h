// The saved half of a control's life: a new one gets its defaults, a loaded one its settings, and changes
// make it want saving again.
#pragma once

#include "com/control_client.h"

#include <cstdint>

namespace vellora::com {

class Persistence {
public:
    bool dirty() const noexcept { return dirty_; }
    void changed() noexcept {
        dirty_ = true;
        written_ = false;
        ++changes_;
    }
    /// To be called before anything is written: from now on what was written before counts no more. Answers how many
    /// changes there were so far.
    std::uint32_t begin_saving() noexcept {
        written_ = false;
        return changes_;
    }
    /// What was written counts as saved at once, if the container says so, else when it is completed; but not if the
    /// container changed the control while it took what was written.
    void saved(bool clear_dirty, std::uint32_t changes_before) noexcept {
        written_ = changes_ == changes_before;
        dirty_ = dirty_ && !(clear_dirty && written_);
    }
    /// The container keeps what was written; a change since then wants saving all the same.
    void completed() noexcept { dirty_ = dirty_ && !written_; }

    /// Without a site the defaults wait for one, since they come from the container. False when the container
    /// has asked before or has loaded the control.
    bool initialise_new(ControlClient& client, bool has_site);
    void site_given(ControlClient& client);
    /// For containers that never ask for it: a control that is used has its defaults.
    void ensure_initialised(ControlClient& client);
    /// Throws E_UNEXPECTED for a container that asks for it inside the loading.
    void load(ControlClient& client, PropertyStore& store);

private:
    bool asked_ = false;
    bool initialised_ = false;
    bool loading_ = false;
    bool dirty_ = false;
    bool written_ = false; // as it is now
    std::uint32_t changes_ = 0;
};

} // namespace vellora::com
