// The members of a dispatch interface with the types of their parameters, read once from its type
// information.
#pragma once

#include "com/ole.h"

#include <vector>

namespace vellora::com {

struct Parameter {
    /// Enumerations and aliases are given as the type behind them; VT_EMPTY is any type of no interest.
    VARTYPE type = VT_EMPTY;
    bool by_reference = false;
};

struct Member {
    DISPID id = DISPID_UNKNOWN;
    INVOKEKIND kind = INVOKE_FUNC;
    /// Without the result.
    std::vector<Parameter> parameters;
    /// The enumeration a property is of; null for all others.
    ComPtr<ITypeInfo> enumeration;
};

class MemberTable {
public:
    explicit MemberTable(ITypeInfo* type);

    /// A member that can be invoked in one of the ways of `flags`; null when there is none.
    const Member* find(DISPID id, WORD flags) const noexcept;

private:
    std::vector<Member> members_; // by identifier
};

} // namespace vellora::com
