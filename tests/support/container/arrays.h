// Arrays of the host language, of any rank and bounds, to hand to the control and to read back.
#pragma once

#include "support/container/variant.h"

#include <string>
#include <vector>

namespace vellora::test {

/// One dimension: String, Variant, Long elements.
Variant text_array(const std::vector<std::wstring>& texts, long lower_bound = 0);
Variant variant_array(const std::vector<Variant>& elements, long lower_bound = 0);
Variant long_array(const std::vector<long>& numbers, long lower_bound = 0);

/// Two dimensions; `rows[i][j]` becomes element (i + lower_first, j + lower_second).
Variant text_table(const std::vector<std::vector<std::wstring>>& rows, long lower_first = 0,
                   long lower_second = 0);

/// An array of a given element type, all elements zero, with one bound per dimension.
Variant blank_array(VARTYPE element, const std::vector<SAFEARRAYBOUND>& bounds);

/// Type, bounds and elements in one line; see Variant::describe.
std::string describe_array(SAFEARRAY* array);

} // namespace vellora::test
