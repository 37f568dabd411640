#include "com/persistence.h"

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
    asked_ = true;
    initialised_ = true;
    client.load(store);
    dirty_ = false;
    written_ = false;
}

} // namespace vellora::com
