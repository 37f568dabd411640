#include "com/error_info.h"

#include "com/control_host.h"

namespace vellora::com {

ErrorInfo::ErrorInfo(ControlHost& host) : Delegating(host.controlling()), host_(host) {}

STDMETHODIMP ErrorInfo::InterfaceSupportsErrorInfo(REFIID id) noexcept {
    const bool supports = id == host_.control_class().default_interface || id == IID_IPersistPropertyBag ||
                          id == IID_IPersistStreamInit || id == IID_IPersistStorage ||
                          id == IID_IPersistMemory;
    return supports ? S_OK : S_FALSE;
}

} // namespace vellora::com
