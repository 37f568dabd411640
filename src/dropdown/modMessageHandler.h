// The replacement window procedure of the library and what it shares among all instances.
#pragma once

#include "runtime/geometry.h"
#include "widgets/window_hook.h"

#include <cstdint>

namespace vellora {

class clsMsgHandler;

/// One for each user-interface thread. All lists have the same procedure beneath, so that the first one ever replaced
/// is kept and serves every window hooked later.
class modMessageHandler final : public HookedMessages {
public:
    /// The hook outlives it.
    explicit modMessageHandler(WindowHook& hook);
    ~modMessageHandler();
    modMessageHandler(const modMessageHandler&) = delete;
    modMessageHandler& operator=(const modMessageHandler&) = delete;

    void ModSetHook(WindowHandle hWnd);
    void unhook(WindowHandle hWnd);
    /// Null for nobody.
    void forward_to(clsMsgHandler* handler);
    /// Forwards to nobody, if it was this one.
    void forget(const clsMsgHandler& handler);

    /// While a message is being forwarded, others go straight to the previous procedure. WM_DESTROY takes the hook off.
    std::intptr_t MessagePassed(WindowHandle hWnd, std::uint32_t uMsg, std::uintptr_t wParam,
                                std::intptr_t lParam);
    /// What the hooked window itself makes of a message.
    std::intptr_t call_previous(WindowHandle hWnd, std::uint32_t uMsg, std::uintptr_t wParam,
                                std::intptr_t lParam);
    Notification notification(std::intptr_t lParam) const { return hook_.notification(lParam); }

    WindowProcedure mlPrevWndProc() const { return mlPrevWndProc_; }

private:
    std::intptr_t message_passed(WindowHandle window, std::uint32_t message, std::uintptr_t wparam,
                                 std::intptr_t lparam) override;
    std::intptr_t forward(std::uint32_t uMsg, std::uintptr_t wParam, std::intptr_t lParam);

    WindowHook& hook_;
    WindowProcedure mlPrevWndProc_ = 0;
    clsMsgHandler* moMsgHandler_ = nullptr;
    bool mbHookBusy_ = false;
};

} // namespace vellora
