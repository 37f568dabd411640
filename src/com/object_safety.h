// IObjectSafety: the control does no harm in the hands of an untrusted page or script. Asked to be careful
// with data, it brings only the standard font and picture to life from a stream.
#pragma once

#include "com/delegating.h"

namespace vellora::com {

class ControlHost;

class ObjectSafety final : public Delegating<IObjectSafety> {
public:
    explicit ObjectSafety(ControlHost& host);

    STDMETHODIMP GetInterfaceSafetyOptions(REFIID id, DWORD* supported, DWORD* enabled) noexcept override;
    STDMETHODIMP SetInterfaceSafetyOptions(REFIID id, DWORD mask, DWORD options) noexcept override;

private:
    void need_interface(REFIID id);

    ControlHost& host_;
    DWORD enabled_ = 0;
};

} // namespace vellora::com
