// IOleControl: mnemonics, ambient changes, frozen events.
#pragma once

#include "com/delegating.h"

namespace vellora::com {

class ControlHost;

class OleControlInterface final : public Delegating<IOleControl> {
public:
    explicit OleControlInterface(ControlHost& host);

    STDMETHODIMP GetControlInfo(CONTROLINFO* info) noexcept override;
    STDMETHODIMP OnMnemonic(MSG* message) noexcept override;
    STDMETHODIMP OnAmbientPropertyChange(DISPID id) noexcept override;
    STDMETHODIMP FreezeEvents(BOOL freeze) noexcept override;

private:
    ControlHost& host_;
};

} // namespace vellora::com
