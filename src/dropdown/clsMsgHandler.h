// Watches messages of one window: keeps the list of watched messages and reports each as it passes by.
#pragma once

#include "runtime/geometry.h"
#include "widgets/window_hook.h"

#include <cstdint>
#include <vector>

namespace vellora {

class modMessageHandler;

/// Who is told of a watched message. Setting lRetVal to a value other than 0 answers the message.
class MessageRecievedListener {
public:
    virtual void MsgHandler_MessageRecieved(std::uint32_t uMsg, std::uintptr_t wParam, std::intptr_t lParam,
                                            std::intptr_t& lRetVal) = 0;

protected:
    ~MessageRecievedListener() = default;
};

/// An error inside any of these is raised again with the procedure as source ("clsMsgHandler.SetHook") and its name
/// and a colon before the description.
class clsMsgHandler {
public:
    clsMsgHandler(modMessageHandler& module, MessageRecievedListener& listener);
    ~clsMsgHandler();
    clsMsgHandler(const clsMsgHandler&) = delete;
    clsMsgHandler& operator=(const clsMsgHandler&) = delete;

    /// False, and nothing changed, while hooked or when the message is watched already.
    bool AddMessage(std::uint32_t uMsg);
    /// Does nothing without a watched message.
    void SetHook(WindowHandle hWnd);
    void UnSetHook();
    /// Reports the message if it is watched; its answer, 0 for none.
    std::intptr_t CheckMessage(std::uint32_t uMsg, std::uintptr_t wParam, std::intptr_t lParam);

    std::int16_t mlMessageCount() const { return static_cast<std::int16_t>(malMessages_.size()); }
    bool mbHooked() const { return mbHooked_; }
    WindowHandle mlHookedWnd() const { return mlHookedWnd_; }

private:
    modMessageHandler& module_;
    MessageRecievedListener& listener_;
    std::vector<std::uint32_t> malMessages_;
    bool mbHooked_ = false;
    WindowHandle mlHookedWnd_ = 0;
};

} // namespace vellora
