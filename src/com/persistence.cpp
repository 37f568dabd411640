#include "com/persistence.h"

#include "com/guard.h"
#include "runtime/scoped_flag.h"

namespace vellora::com {

bool Persistence::initialise_new(ControlClient& client, bool has_site) {
    if (asked_)
        return false;
    asked_ = true;
    if (has_site)
        ensure_initialised(client);
    return true;
}

void Persistence::site_given(ControlClient& client) {
    if (asked_)
        ensure_initialised(client);
}

void Persistence::ensure_initialised(ControlClient& client) {
    if (initialised_)
        return;
    initialised_ = true;
    client.initialise_new();
}

void Persistence::load(ControlClient& client, PropertyStore& store) {
    // The control would be whole at the end of the inner loading, with half of the outer one to come.
    if (loading_)
        throw ComFailure(E_UNEXPECTED);
    const RaisedFlag loading(loading_);
    asked_ = true;
    initialised_ = true;
    client.load(store);
    ++changes_; // for a container that loads inside a saving
    dirty_ = false;
    written_ = false;
}

} // namespace vellora::com
