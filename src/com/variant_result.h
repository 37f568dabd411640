// What a member returns in a variant, as the caller's VARIANT.
#pragma once

#include "com/ole.h"
#include "runtime/variant.h"

namespace vellora::com {

/// Overwrites `out`, whose former content counts as uninitialised. Texts become a BSTR or an array of
/// them, Integers an array of VT_I2, optional Longs an array of variants.
void to_variant(const VariantResult& result, VARIANT* out);

} // namespace vellora::com
