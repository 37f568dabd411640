// What the behaviour returns, in the form in which a caller of the public interface gets it.
#pragma once

#include "com/bstr.h"
#include "com/ole.h"
#include "com/variant_result.h"

#include <string_view>
#include <type_traits>

namespace vellora::server {

/// Empties a caller's place for a result; what it holds before counts as uninitialised.
template <class Out>
void clear(Out* out) noexcept {
    *out = {};
}

inline void hand_out(bool value, VARIANT_BOOL* out) noexcept {
    *out = value ? VARIANT_TRUE : VARIANT_FALSE;
}

/// Numbers, colours and enumerations. Window handles have 32 significant bits, so that a Long holds them.
template <class Number, class Out>
requires std::is_arithmetic_v<Number>
void hand_out(Number value, Out* out) noexcept {
    *out = static_cast<Out>(value);
}

inline void hand_out(std::u16string_view text, BSTR* out) {
    *out = com::make_bstr(text);
}

inline void hand_out(const VariantResult& result, VARIANT* out) {
    com::to_variant(result, out);
}

template <class Interface>
void hand_out(com::ComPtr<Interface> object, Interface** out) noexcept {
    *out = object.Detach();
}

} // namespace vellora::server
