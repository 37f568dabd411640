// IProvideClassInfo2: where a container finds the control's description and its events.
#pragma once

#include "com/delegating.h"

namespace vellora::com {

class ControlHost;

class ClassInfo final : public Delegating<IProvideClassInfo2> {
public:
    explicit ClassInfo(ControlHost& host);

    STDMETHODIMP GetClassInfo(ITypeInfo** type) noexcept override;
    STDMETHODIMP GetGUID(DWORD kind, GUID* id) noexcept override;

private:
    ControlHost& host_;
};

} // namespace vellora::com
