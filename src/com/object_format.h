// How an object lies in the control's own stream: its class and whatever it saves of itself.
#pragma once

#include "com/value_format.h"

namespace vellora::com {

/// Nothing is written for an object that cannot save itself; null is kept as Nothing.
bool write_object(ByteWriter& out, IUnknown* object);

/// Reads what follows the type. Throws E_ACCESSDENIED for a class that is not allowed.
Variant read_object(ByteReader& in, StoredObjects objects);

} // namespace vellora::com
