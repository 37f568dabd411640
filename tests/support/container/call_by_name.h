// Calling members by name through IDispatch, as scripts do.
#pragma once

#include "support/container/variant.h"

#include <string>
#include <vector>

namespace vellora::test {

/// Arguments in declared order; Variant::missing() leaves an optional one out.
/// Each throws CallFailed when the call fails or the name is unknown.
Variant call_method(IDispatch* object, const std::wstring& name, std::vector<Variant> arguments = {});
Variant get_property(IDispatch* object, const std::wstring& name, std::vector<Variant> arguments = {});
void put_property(IDispatch* object, const std::wstring& name, Variant value,
                  std::vector<Variant> arguments = {});
void set_property(IDispatch* object, const std::wstring& name, Variant object_value);
/// A method or a property, whichever the name is: `DISPATCH_METHOD | DISPATCH_PROPERTYGET`.
Variant invoke_either(IDispatch* object, const std::wstring& name, std::vector<Variant> arguments = {});

DISPID dispatch_id(IDispatch* object, const std::wstring& name);

} // namespace vellora::test
