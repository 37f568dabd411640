// Properties of a caller's objects: by identifier and by name.
#pragma once

#include "com/ole.h"
#include "com/variant.h"

#include <optional>

namespace vellora::com {

/// With an index, of a property that has one. An error of the object is thrown as a HostError, any other failure as
/// a ComFailure.
Variant get_property(IDispatch* object, DISPID id, const Variant* index = nullptr);
void put_property(IDispatch* object, DISPID id, const Variant& value, const Variant* index = nullptr);

/// Nothing when the object has no such property or does not give it.
std::optional<Variant> read_property(IDispatch* object, DISPID id) noexcept;
std::optional<Variant> read_property(IDispatch* object, const wchar_t* name) noexcept;
/// Of a property with an index.
std::optional<Variant> read_property(IDispatch* object, const wchar_t* name, const Variant& index) noexcept;

bool has_member(IDispatch* object, const wchar_t* name) noexcept;

} // namespace vellora::com
