// How one value lies in the control's own stream: plain values as their payload, texts with their length,
// objects as class and state.
#pragma once

#include "com/byte_buffer.h"
#include "com/variant.h"

namespace vellora::com {

/// Which classes of objects a stream may bring to life: the standard font and picture, or any.
enum class StoredObjects { standard, any };

/// False for what has no stored form: arrays, and objects that cannot save themselves.
bool write_value(ByteWriter& out, const VARIANT& value);

/// Throws STG_E_DOCFILECORRUPT for bytes that are no value, and what an object answers that cannot be made.
Variant read_value(ByteReader& in, StoredObjects objects);

} // namespace vellora::com
