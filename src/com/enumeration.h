// The values of an enumeration as property lists and pages offer them.
#pragma once

#include "com/ole.h"

#include <cstdint>
#include <string>
#include <vector>

namespace vellora::com {

struct Choice {
    std::int32_t value = 0;
    /// "0 - Name".
    std::u16string text;
};

/// In the order they are declared; none for a null type.
std::vector<Choice> choices_of(ITypeInfo* enumeration);

/// The name of a type's member.
std::u16string member_name(ITypeInfo* type, MEMBERID id);

} // namespace vellora::com
