// The default property of a caller's object, which stands for the object where a value is wanted.
#pragma once

#include "com/object_property.h"

namespace vellora::com {

/// True for object variants, also by reference.
bool holds_object(const VARIANT& value) noexcept;

/// What the object's default property gives, followed through objects to a value. Errors 91 for Nothing,
/// 438 for an object without one; an error of the object travels on.
Variant default_value(const VARIANT& object);

} // namespace vellora::com
