// Replacing a window's procedure, and reading the messages that then pass by.
#pragma once

#include "runtime/geometry.h"

#include <cstdint>

namespace vellora {

/// A window procedure as a number that only the window system can call.
using WindowProcedure = std::intptr_t;

/// Where the replacement procedure hands its messages. The result is the message's own.
class HookedMessages {
public:
    virtual std::intptr_t message_passed(WindowHandle window, std::uint32_t message, std::uintptr_t wparam,
                                         std::intptr_t lparam) = 0;

protected:
    ~HookedMessages() = default;
};

struct Notification {
    WindowHandle from = 0;
    std::uintptr_t id = 0;
    std::int32_t code = 0;
};

class WindowHook {
public:
    virtual ~WindowHook() = default;

    /// One receiver a thread, set before its first replacement; null for none.
    virtual void receive(HookedMessages* receiver) = 0;
    /// Puts the replacement in place and returns the procedure that was there; 0 when the window is gone.
    virtual WindowProcedure replace_procedure(WindowHandle window) = 0;
    virtual void restore_procedure(WindowHandle window, WindowProcedure procedure) = 0;
    virtual std::intptr_t call_procedure(WindowProcedure procedure, WindowHandle window, std::uint32_t message,
                                         std::uintptr_t wparam, std::intptr_t lparam) = 0;
    /// The header that a notification message points to; empty when it points nowhere.
    virtual Notification notification(std::intptr_t lparam) const = 0;
};

} // namespace vellora
