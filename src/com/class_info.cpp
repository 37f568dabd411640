#include "com/class_info.h"

#include "com/control_host.h"

namespace vellora::com {

ClassInfo::ClassInfo(ControlHost& host) : Delegating(host.controlling()), host_(host) {}

STDMETHODIMP ClassInfo::GetClassInfo(ITypeInfo** type) noexcept {
    return guard([&] {
        need(type);
        *type = nullptr;
        *type = host_.types()->type(host_.control_class().class_id).Detach();
    });
}

STDMETHODIMP ClassInfo::GetGUID(DWORD kind, GUID* id) noexcept {
    return guard([&] {
        need(id);
        *id = GUID_NULL;
        if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID)
            throw ComFailure(E_INVALIDARG);
        *id = host_.control_class().events_interface;
    });
}

} // namespace vellora::com
