#include "com/object_safety.h"

#include "com/control_host.h"

namespace vellora::com {

namespace {

constexpr DWORD supported_options = INTERFACESAFE_FOR_UNTRUSTED_CALLER | INTERFACESAFE_FOR_UNTRUSTED_DATA;

} // namespace

ObjectSafety::ObjectSafety(ControlHost& host) : Delegating(host.controlling()), host_(host) {}

STDMETHODIMP ObjectSafety::GetInterfaceSafetyOptions(REFIID id, DWORD* supported, DWORD* enabled) noexcept {
    return guard([&] {
        need(supported);
        need(enabled);
        *supported = *enabled = 0;
        need_interface(id);
        *supported = supported_options;
        *enabled = enabled_;
    });
}

STDMETHODIMP ObjectSafety::SetInterfaceSafetyOptions(REFIID id, DWORD mask, DWORD options) noexcept {
    return guard([&] {
        need_interface(id);
        if ((mask & ~supported_options) != 0)
            throw ComFailure(E_FAIL);
        enabled_ = (enabled_ & ~mask) | (options & mask);
        host_.restrict_stored_objects((enabled_ & INTERFACESAFE_FOR_UNTRUSTED_DATA) != 0);
    });
}

void ObjectSafety::need_interface(REFIID id) {
    ComPtr<IUnknown> offered;
    check(host_.controlling()->QueryInterface(id, &offered));
}

} // namespace vellora::com
