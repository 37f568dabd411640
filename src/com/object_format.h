// Objects between their two forms: alive, and as class and state in the control's own format.
#pragma once

#include "com/variant.h"
#include "host/settings_format.h"

#include <optional>

namespace vellora::com {

/// Which classes of objects saved settings may bring to life: the standard font and picture, or any.
enum class StoredObjects { standard, any };

/// Nothing for an object that cannot save itself; null is kept as Nothing. Throws STG_E_CANTSAVE for objects too deep
/// within each other.
std::optional<SettingObject> stored_object(IUnknown* object);

/// Throws E_ACCESSDENIED for a class that is not allowed, and what an object answers that cannot be made.
Variant live_object(const SettingObject& stored, StoredObjects objects);

} // namespace vellora::com
