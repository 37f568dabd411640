#include "com/persist_steps.h"

#include "com/control_host.h"
#include "com/stream_store.h"

namespace vellora::com {

void give_class_id(ControlHost& host, CLSID* class_id) {
    need(class_id);
    *class_id = host.control_class().class_id;
}

void initialise_new(ControlHost& host, HRESULT repeated) {
    if (!host.persistence().initialise_new(host.client(), host.site().get() != nullptr))
        throw ComFailure(repeated);
}

void load_settings(ControlHost& host, PropertyStore& store) {
    host.persistence().load(host.client(), store);
    host.view_changed();
}

void save_settings(ControlHost& host, PropertyStore& store) {
    host.ensure_initialised();
    host.client().save(store);
}

void load_from_stream(ControlHost& host, IStream* stream) {
    StreamStore store(host.stored_objects());
    store.load(stream);
    load_settings(host, store);
}

Bytes saved_settings(ControlHost& host) {
    StreamStore store;
    save_settings(host, store);
    return store.content();
}

void save_to_stream(ControlHost& host, IStream* stream) {
    need(stream);
    write_exactly(stream, saved_settings(host));
}

} // namespace vellora::com
