#include "members.h"

#include "hosting/failure.h"
#include "hosting/variant.h"

#include <algorithm>
#include <map>
#include <wrl/client.h>

namespace vellora::samples {

using Microsoft::WRL::ComPtr;

namespace {

/// The name of a member, then those of its parameters; a new value has none.
std::vector<std::wstring> names_of(ITypeInfo* type, MEMBERID id) {
    constexpr UINT most = 32;
    BSTR names[most]{};
    UINT count = 0;
    type->GetNames(id, names, most, &count);
    std::vector<std::wstring> result(names, names + count);
    for (const BSTR name : names)
        SysFreeString(name);
    return result;
}

/// A named type, from where it is used; null when it has no name.
ComPtr<ITypeInfo> named_type(ITypeInfo* owner, const TYPEDESC& declared) {
    if (declared.vt == VT_PTR)
        return named_type(owner, *declared.lptdesc);
    ComPtr<ITypeInfo> type;
    if (declared.vt == VT_USERDEFINED)
        owner->GetRefTypeInfo(declared.hreftype, &type);
    return type;
}

std::vector<Constant> constants_in(ITypeInfo* type) {
    std::vector<Constant> result;
    VARDESC* constant = nullptr;
    for (UINT i = 0; SUCCEEDED(type->GetVarDesc(i, &constant)); ++i) {
        const std::vector<std::wstring> names = names_of(type, constant->memid);
        Variant value(constant->varkind == VAR_CONST ? *constant->lpvarValue : VARIANT{});
        if (!names.empty() && value.change_to(VT_I4))
            result.push_back({names.front(), value.get()->lVal});
        type->ReleaseVarDesc(constant);
    }
    return result;
}

/// Named types count as what they stand for: enumerations as numbers.
void describe(Parameter& parameter, ITypeInfo* owner, const TYPEDESC& declared) {
    const ComPtr<ITypeInfo> type = named_type(owner, declared);
    TYPEATTR* attributes = nullptr;
    if (!type || FAILED(type->GetTypeAttr(&attributes))) {
        parameter.type = declared.vt == VT_PTR ? declared.lptdesc->vt : declared.vt;
        return;
    }
    parameter.type = attributes->typekind == TKIND_ENUM    ? static_cast<VARTYPE>(VT_I4)
                     : attributes->typekind == TKIND_ALIAS ? attributes->tdescAlias.vt
                                                           : static_cast<VARTYPE>(VT_DISPATCH);
    if (attributes->typekind == TKIND_ENUM)
        parameter.constants = constants_in(type.Get());
    type->ReleaseTypeAttr(attributes);
}

std::wstring initial_of(const PARAMDESC& parameter) {
    if (!(parameter.wParamFlags & PARAMFLAG_FHASDEFAULT) || !parameter.pparamdescex)
        return {};
    Variant value(parameter.pparamdescex->varDefaultValue);
    value.change_to(VT_BSTR);
    return value.text();
}

std::vector<Parameter> parameters_of(ITypeInfo* type, const FUNCDESC& function) {
    const std::vector<std::wstring> names = names_of(type, function.memid);
    std::vector<Parameter> result;
    for (SHORT i = 0; i < function.cParams; ++i) {
        const ELEMDESC& parameter = function.lprgelemdescParam[i];
        const auto name = static_cast<std::size_t>(i) + 1;
        result.push_back({name < names.size() ? names[name] : L"Value",
                          VT_VARIANT,
                          (parameter.paramdesc.wParamFlags & PARAMFLAG_FOPT) != 0,
                          initial_of(parameter.paramdesc),
                          {}});
        describe(result.back(), type, parameter.tdesc);
    }
    return result;
}

bool is_kept_back(const FUNCDESC& function) {
    return (function.wFuncFlags & (FUNCFLAG_FHIDDEN | FUNCFLAG_FRESTRICTED)) != 0;
}

void add(std::map<MEMBERID, Member>& members, ITypeInfo* type, const FUNCDESC& function) {
    const std::vector<std::wstring> names = names_of(type, function.memid);
    if (is_kept_back(function) || names.empty())
        return;
    std::vector<Parameter> parameters = parameters_of(type, function);
    Member& member = members.try_emplace(function.memid, Member{function.memid, names.front(), {}}).first->second;
    const bool sets = (function.invkind & (INVOKE_PROPERTYPUT | INVOKE_PROPERTYPUTREF)) != 0;
    if (sets && !parameters.empty()) {
        member.new_value = {parameters.back()};
        member.new_value.front().name = L"Value";
        parameters.pop_back();
    }
    member.parameters = std::move(parameters);
    if (!member.parameters.empty() || (function.wFuncFlags & FUNCFLAG_FNONBROWSABLE))
        member.in_grid = false;
    member.is_method = function.invkind == INVOKE_FUNC;
    member.readable = member.readable || function.invkind == INVOKE_PROPERTYGET;
}

} // namespace

std::vector<Member> members_of(IUnknown* object) {
    ComPtr<IDispatch> dispatch;
    ComPtr<ITypeInfo> type;
    check(object->QueryInterface(IID_PPV_ARGS(&dispatch)), L"Asking the control for IDispatch");
    check(dispatch->GetTypeInfo(0, LOCALE_USER_DEFAULT, &type), L"Asking the control for its type");
    std::map<MEMBERID, Member> members;
    FUNCDESC* function = nullptr;
    for (UINT i = 0; SUCCEEDED(type->GetFuncDesc(i, &function)); ++i) {
        add(members, type.Get(), *function);
        type->ReleaseFuncDesc(function);
    }
    std::vector<Member> result;
    for (auto& [id, member] : members)
        if (member.is_method || !member.in_grid)
            result.push_back(std::move(member));
    std::ranges::sort(result, {}, &Member::name);
    return result;
}

} // namespace vellora::samples
