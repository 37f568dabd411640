#include "com/member_table.h"

#include "com/type_owners.h"

#include <algorithm>

namespace vellora::com {

namespace {

ComPtr<ITypeInfo> referenced(ITypeInfo* type, const TYPEDESC& description) {
    ComPtr<ITypeInfo> target;
    check(type->GetRefTypeInfo(description.hreftype, &target));
    return target;
}

/// The type behind names: an enumeration is a Long, an alias what it stands for.
VARTYPE plain_type(ITypeInfo* type, const TYPEDESC& description) {
    if (description.vt != VT_USERDEFINED)
        return description.vt;
    const ComPtr<ITypeInfo> target = referenced(type, description);
    const TypeAttributes attributes(target.Get());
    if (attributes->typekind == TKIND_ENUM)
        return VT_I4;
    if (attributes->typekind == TKIND_ALIAS)
        return plain_type(target.Get(), attributes->tdescAlias);
    return VT_EMPTY;
}

Parameter parameter_of(ITypeInfo* type, const TYPEDESC& description) {
    if (description.vt == VT_PTR)
        return {plain_type(type, *description.lptdesc), true};
    return {plain_type(type, description), false};
}

bool is_result(const ELEMDESC& element) {
    return (element.paramdesc.wParamFlags & PARAMFLAG_FRETVAL) != 0;
}

ComPtr<ITypeInfo> enumeration_of(ITypeInfo* type, const TYPEDESC& description) {
    if (description.vt == VT_PTR)
        return enumeration_of(type, *description.lptdesc);
    if (description.vt != VT_USERDEFINED)
        return nullptr;
    ComPtr<ITypeInfo> target = referenced(type, description);
    return TypeAttributes(target.Get())->typekind == TKIND_ENUM ? target : nullptr;
}

/// The result stands as the last parameter or, folded away, as the type of the function.
const TYPEDESC& result_type(const FUNCDESC& function) {
    const SHORT last = static_cast<SHORT>(function.cParams - 1);
    if (last >= 0 && is_result(function.lprgelemdescParam[last]))
        return function.lprgelemdescParam[last].tdesc;
    return function.elemdescFunc.tdesc;
}

Member member_of(ITypeInfo* type, const FUNCDESC& function) {
    Member member{function.memid, function.invkind, {}, nullptr};
    for (SHORT i = 0; i < function.cParams; ++i)
        if (!is_result(function.lprgelemdescParam[i]))
            member.parameters.push_back(parameter_of(type, function.lprgelemdescParam[i].tdesc));
    if (function.invkind == INVOKE_PROPERTYGET)
        member.enumeration = enumeration_of(type, result_type(function));
    return member;
}

} // namespace

MemberTable::MemberTable(ITypeInfo* type) {
    const TypeAttributes attributes(type);
    for (UINT i = 0; i < attributes->cFuncs; ++i)
        members_.push_back(member_of(type, *FunctionDescription(type, i)));
    std::stable_sort(members_.begin(), members_.end(),
                     [](const Member& a, const Member& b) { return a.id < b.id; });
}

const Member* MemberTable::find(DISPID id, WORD flags) const noexcept {
    const auto first =
        std::lower_bound(members_.begin(), members_.end(), id,
                         [](const Member& member, DISPID wanted) { return member.id < wanted; });
    for (auto member = first; member != members_.end() && member->id == id; ++member)
        if ((member->kind & flags) != 0)
            return &*member;
    return nullptr;
}

} // namespace vellora::com
