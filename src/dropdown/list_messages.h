// What the control makes of the messages its open list receives: focus lost, a header dragged, a divider pulled.
#pragma once

#include "control/core.h"
#include "dropdown/clsMsgHandler.h"

namespace vellora {

class DropDown;

class ListMessages {
public:
    ListMessages(ControlCore& core, modMessageHandler& module, DropDown& drop_down);

    /// Error 9 for a divider pulled where no column is.
    void MsgHandler_MessageRecieved(std::uint32_t uMsg, std::uintptr_t wParam, std::intptr_t lParam,
                                    std::intptr_t& lRetVal);

    /// Whether the header may still carry out the new order: not when the program has made other columns meanwhile.
    bool column_dragged();

private:
    void header_notified(std::uintptr_t wParam, std::intptr_t lParam, std::intptr_t& lRetVal);
    bool refuses_divider(WindowHandle header) const;

    ControlCore& core_;
    modMessageHandler& module_;
    DropDown& drop_down_;
};

} // namespace vellora
