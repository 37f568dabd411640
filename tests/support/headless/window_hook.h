// Replacing window procedures on the simulated desktop. A notification's lparam is the address of a
// Notification.
#pragma once

#include "support/headless/desktop.h"
#include "widgets/window_hook.h"

namespace vellora::test {

class HeadlessWindowHook : public WindowHook {
public:
    explicit HeadlessWindowHook(Desktop& desktop) : desktop_(desktop) {}

    void receive(HookedMessages* receiver) override { desktop_.set_receiver(receiver); }
    WindowProcedure replace_procedure(WindowHandle window) override;
    void restore_procedure(WindowHandle window, WindowProcedure procedure) override;
    std::intptr_t call_procedure(WindowProcedure procedure, WindowHandle window, std::uint32_t message,
                                 std::uintptr_t wparam, std::intptr_t lparam) override {
        return desktop_.call(procedure, window, message, wparam, lparam);
    }
    Notification notification(std::intptr_t lparam) const override {
        return *reinterpret_cast<const Notification*>(lparam);
    }

private:
    Desktop& desktop_;
};

} // namespace vellora::test
