// Replaces window procedures by one and the same procedure, which hands every message to the one receiver.
#pragma once

#include "widgets/window_hook.h"

namespace vellora::win32 {

class WindowHookPeer final : public WindowHook {
public:
    void receive(HookedMessages* receiver) override;
    WindowProcedure replace_procedure(WindowHandle window) override;
    void restore_procedure(WindowHandle window, WindowProcedure procedure) override;
    std::intptr_t call_procedure(WindowProcedure procedure, WindowHandle window, std::uint32_t message,
                                 std::uintptr_t wparam, std::intptr_t lparam) override;
    Notification notification(std::intptr_t lparam) const override;
};

} // namespace vellora::win32
