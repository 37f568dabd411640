// The platform's OLE headers in the order they need, and the owner of interface references.
#pragma once

#include <windows.h>

#include <ole2.h>

#include <ocidl.h>
#include <olectl.h>

#include <objsafe.h>
#include <wrl/client.h>

namespace vellora::com {

using Microsoft::WRL::ComPtr;

/// Takes over a reference that is counted already. ComPtr::Attach of this compiler's headers counts another.
template <class Interface>
ComPtr<Interface> adopt(Interface* owned) noexcept {
    ComPtr<Interface> owner;
    *owner.ReleaseAndGetAddressOf() = owned;
    return owner;
}

} // namespace vellora::com
