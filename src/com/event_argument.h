// Arguments of events as the variants a sink gets.
#pragma once

#include "com/ole.h"

#include <cstdint>

namespace vellora::com {

inline VARIANT by_value(std::int16_t value) noexcept {
    VARIANT argument = {};
    V_VT(&argument) = VT_I2;
    V_I2(&argument) = value;
    return argument;
}

inline VARIANT by_value(bool value) noexcept {
    VARIANT argument = {};
    V_VT(&argument) = VT_BOOL;
    V_BOOL(&argument) = value ? VARIANT_TRUE : VARIANT_FALSE;
    return argument;
}

/// The sink may write into what is referred to.
template <class Value>
VARIANT reference_to(Value& value, VARTYPE type) noexcept {
    VARIANT argument = {};
    V_VT(&argument) = static_cast<VARTYPE>(type | VT_BYREF);
    V_BYREF(&argument) = &value;
    return argument;
}

inline VARIANT by_reference(std::int16_t& value) noexcept {
    return reference_to(value, VT_I2);
}
inline VARIANT by_reference(std::int32_t& value) noexcept {
    return reference_to(value, VT_I4);
}
inline VARIANT by_reference(float& value) noexcept {
    return reference_to(value, VT_R4);
}
/// VARIANT_BOOL is a 16-bit number to the compiler, hence a name of its own.
inline VARIANT boolean_by_reference(VARIANT_BOOL& value) noexcept {
    return reference_to(value, VT_BOOL);
}

} // namespace vellora::com
