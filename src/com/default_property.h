// Reading properties of a caller's objects: by identifier, by name, and the default one that stands for
// the object where a value is wanted.
#pragma once

#include "com/ole.h"
#include "com/variant.h"

#include <optional>

namespace vellora::com {

/// True for object variants, also by reference.
bool holds_object(const VARIANT& value) noexcept;

/// What the object's default property gives, followed through objects to a value. Errors 91 for Nothing,
/// 438 for an object without one; an error of the object travels on.
Variant default_value(const VARIANT& object);

/// Nothing when the object has no such property or does not give it.
std::optional<Variant> read_property(IDispatch* object, DISPID id) noexcept;
std::optional<Variant> read_property(IDispatch* object, const wchar_t* name) noexcept;
/// Of a property with an index.
std::optional<Variant> read_property(IDispatch* object, const wchar_t* name, const Variant& index) noexcept;

bool has_member(IDispatch* object, const wchar_t* name) noexcept;

} // namespace vellora::com
