#include "com/enumeration.h"

#include "com/bstr.h"
#include "com/type_owners.h"
#include "com/variant.h"
#include "runtime/decimal.h"

namespace vellora::com {

std::vector<Choice> choices_of(ITypeInfo* enumeration) {
    std::vector<Choice> choices;
    if (!enumeration)
        return choices;
    const TypeAttributes attributes(enumeration);
    for (UINT i = 0; i < attributes->cVars; ++i) {
        const VariableDescription variable(enumeration, i);
        const std::int32_t value = V_I4(&converted(*variable->lpvarValue, VT_I4).get());
        choices.push_back({value, to_decimal(value) + u" - " + member_name(enumeration, variable->memid)});
    }
    return choices;
}

std::u16string member_name(ITypeInfo* type, MEMBERID id) {
    Bstr name;
    UINT count = 0;
    check(type->GetNames(id, name.put(), 1, &count));
    return std::u16string(name.view());
}

} // namespace vellora::com
