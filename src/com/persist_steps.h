// What all doors of persistence do alike.
#pragma once

#include "com/property_store.h"
#include "host/settings_format.h"

namespace vellora::com {

class ControlHost;

void give_class_id(ControlHost& host, CLSID* class_id);
/// Throws `repeated` for a control that was initialised or loaded before.
void initialise_new(ControlHost& host, HRESULT repeated);
void load_settings(ControlHost& host, PropertyStore& store);
void save_settings(ControlHost& host, PropertyStore& store);

void load_from_stream(ControlHost& host, IStream* stream);
void save_to_stream(ControlHost& host, IStream* stream);
/// In the control's own format.
Bytes saved_settings(ControlHost& host);

} // namespace vellora::com
