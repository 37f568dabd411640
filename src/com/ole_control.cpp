#include "com/ole_control.h"

#include "com/control_host.h"

namespace vellora::com {

OleControlInterface::OleControlInterface(ControlHost& host) : Delegating(host.controlling()), host_(host) {}

STDMETHODIMP OleControlInterface::GetControlInfo(CONTROLINFO* info) noexcept {
    return guard([&] {
        need(info);
        const Mnemonics mnemonics = host_.client().mnemonics();
        *info = {sizeof *info, mnemonics.accelerators, mnemonics.count, mnemonics.flags};
    });
}

STDMETHODIMP OleControlInterface::OnMnemonic(MSG* message) noexcept {
    const Hold alive = host_.hold();
    return guard([&] {
        need(message);
        host_.client().on_mnemonic(*message);
    });
}

STDMETHODIMP OleControlInterface::OnAmbientPropertyChange(DISPID id) noexcept {
    // A container has nothing to do with what a control makes of the news.
    const Hold alive = host_.hold();
    guard([&] { host_.client().on_ambient_changed(id); });
    return S_OK;
}

STDMETHODIMP OleControlInterface::FreezeEvents(BOOL freeze) noexcept {
    host_.freeze_events(freeze != FALSE);
    return S_OK;
}

} // namespace vellora::com
