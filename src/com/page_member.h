// One property on a page: its name, how it is entered, and its value in an object.
#pragma once

#include "com/enumeration.h"
#include "com/member_table.h"
#include "com/variant.h"

namespace vellora::com {

/// A text that the property converts, a check box, one of the values of an enumeration, or a colour.
enum class PageEntry { text, flag, choice, color };

struct PageMember {
    /// Throws what the type information answers for an identifier it does not have.
    PageMember(ITypeInfo* type, const MemberTable& members, DISPID id, bool numbered);

    DISPID id;
    std::u16string name;
    /// Has a number as its argument.
    bool numbered;
    PageEntry entry = PageEntry::text;
    std::vector<Choice> choices;
};

/// A colour as form designers write it: "&H80000005&".
std::u16string color_text(std::uint32_t color);
/// That, or a decimal number; what is neither is left for the property to refuse.
Variant color_value(const std::u16string& text);

} // namespace vellora::com
