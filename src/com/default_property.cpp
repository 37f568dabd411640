#include "com/default_property.h"

#include "com/guard.h"
#include "runtime/host_error.h"

namespace vellora::com {

namespace {

ComPtr<IDispatch> dispatch_of(const VARIANT& value) {
    IUnknown* const object = V_ISBYREF(&value) ? *V_UNKNOWNREF(&value) : V_UNKNOWN(&value);
    if (!object)
        throw HostError(error_number::object_not_set);
    ComPtr<IDispatch> dispatch;
    if (FAILED(object->QueryInterface(IID_PPV_ARGS(&dispatch))))
        throw HostError(error_number::member_not_supported);
    return dispatch;
}

Variant default_property(IDispatch* object) {
    try {
        return get_property(object, DISPID_VALUE);
    } catch (const ComFailure&) {
        throw HostError(error_number::member_not_supported);
    }
}

} // namespace

bool holds_object(const VARIANT& value) noexcept {
    const VARTYPE type = V_VT(&value) & static_cast<VARTYPE>(~VT_BYREF);
    return type == VT_DISPATCH || type == VT_UNKNOWN;
}

Variant default_value(const VARIANT& object) {
    constexpr int deepest = 8; // an object that is its own default value
    Variant value = Variant::copy_of(object);
    for (int depth = 0; holds_object(value.get()); ++depth) {
        if (depth == deepest)
            throw HostError(error_number::type_mismatch);
        value = default_property(dispatch_of(value.get()).Get());
    }
    return value;
}

} // namespace vellora::com
