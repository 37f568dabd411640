// The members of a control that take arguments, or that a property grid leaves out: methods, and properties such as
// List(ItemIndex, TextCol).
#pragma once

#include <string>
#include <vector>
#include <windows.h>

#include <oaidl.h>

namespace vellora::samples {

/// One of the values that an enumeration has.
struct Constant {
    std::wstring name;
    long value;
};

struct Parameter {
    std::wstring name;
    /// Of the value to pass, where it matters; VT_VARIANT when anything goes.
    VARTYPE type;
    bool optional;
    /// What it is when it is left out, as far as the control says.
    std::wstring initial;
    /// The values to choose from, which may be typed by name.
    std::vector<Constant> constants;
};

struct Member {
    DISPID id;
    std::wstring name;
    std::vector<Parameter> parameters;
    bool is_method = false;
    bool readable = false;
    /// A property that the grid has.
    bool in_grid = true;
    /// Of a property that can be set.
    std::vector<Parameter> new_value = {};
};

/// By name. Throws a Failure when the object does not describe itself.
std::vector<Member> members_of(IUnknown* object);

} // namespace vellora::samples
