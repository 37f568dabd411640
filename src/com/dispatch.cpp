#include "com/dispatch.h"

#include "com/argument_pass.h"

namespace vellora::com {

namespace {

/// A property that only takes Set is also given what was assigned without it.
WORD accepted_flags(const MemberTable& members, DISPID member, WORD flags) {
    const bool plain_put = (flags & DISPATCH_PROPERTYPUT) != 0;
    if (plain_put && !members.find(member, flags) && members.find(member, DISPATCH_PROPERTYPUTREF))
        return DISPATCH_PROPERTYPUTREF;
    return flags;
}

/// Whoever takes more than the member has would have the rest passed on to its result, be that an object or not.
bool surplus(const Member* member, const DISPPARAMS& arguments) {
    return member && arguments.cArgs > member->parameters.size();
}

/// Hosts know colours as signed numbers.
void make_signed(VARIANT* result) {
    if (result && (V_VT(result) == VT_UI4 || V_VT(result) == VT_UINT))
        V_VT(result) = VT_I4;
}

} // namespace

HRESULT invoke(const InterfaceInfo& interface_info, void* instance, const InvokeCall& call) {
    need(call.arguments);
    const WORD flags = accepted_flags(interface_info.members, call.member, call.flags);
    const Member* const member = interface_info.members.find(call.member, flags);
    if (surplus(member, *call.arguments))
        return DISP_E_BADPARAMCOUNT;
    ArgumentPass pass(*call.arguments, member);
    const HRESULT result = interface_info.type->Invoke(instance, call.member, flags, pass.arguments(),
                                                       call.result, call.exception, call.bad_argument);
    if (SUCCEEDED(result)) {
        pass.write_back();
        make_signed(call.result);
    }
    return result;
}

} // namespace vellora::com
