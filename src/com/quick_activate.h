// IQuickActivate: the first conversation between container and control in one call.
#pragma once

#include "com/delegating.h"

namespace vellora::com {

class ControlHost;

class QuickActivation final : public Delegating<IQuickActivate> {
public:
    explicit QuickActivation(ControlHost& host);

    STDMETHODIMP QuickActivate(QACONTAINER* container, QACONTROL* control) noexcept override;
    STDMETHODIMP SetContentExtent(LPSIZEL extent) noexcept override;
    STDMETHODIMP GetContentExtent(LPSIZEL extent) noexcept override;

private:
    void connect_sinks(const QACONTAINER& container, QACONTROL& control);

    ControlHost& host_;
};

} // namespace vellora::com
