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

/// Hosts know colours as signed numbers.
void make_signed(VARIANT* result) {
    if (result && (V_VT(result) == VT_UI4 || V_VT(result) == VT_UINT))
        V_VT(result) = VT_I4;
}

} // namespace

HRESULT invoke(const InterfaceInfo& interface_info, void* instance, const InvokeCall& call) {
    need(call.arguments);
    const WORD flags = accepted_flags(interface_info.members, call.member, call.flags);
    ArgumentPass pass(*call.arguments, interface_info.members.find(call.member, flags));
    const HRESULT result = interface_info.type->Invoke(instance, call.member, flags, pass.arguments(),
                                                       call.result, call.exception, call.bad_argument);
    if (SUCCEEDED(result)) {
        pass.write_back();
        make_signed(call.result);
    }
    return result;
}

} // namespace vellora::com
