#include "dropdown/modMessageHandler.h"

#include "dropdown/clsMsgHandler.h"
#include "runtime/procedure_label.h"
#include "runtime/scoped_flag.h"
#include "widgets/user32.h"

namespace vellora {

modMessageHandler::modMessageHandler(WindowHook& hook) : hook_(hook) { hook_.receive(this); }

modMessageHandler::~modMessageHandler() { hook_.receive(nullptr); }

void modMessageHandler::ModSetHook(WindowHandle hWnd) {
    labelled(u"modMessageHandler.ModSetHook", [&] {
        if (hWnd == 0) {
            return;
        }
        const WindowProcedure previous = hook_.replace_procedure(hWnd);
        if (mlPrevWndProc_ == 0) {
            mlPrevWndProc_ = previous;
        }
    });
}

void modMessageHandler::unhook(WindowHandle hWnd) { hook_.restore_procedure(hWnd, mlPrevWndProc_); }

void modMessageHandler::forward_to(clsMsgHandler* handler) { moMsgHandler_ = handler; }

void modMessageHandler::forget(const clsMsgHandler& handler) {
    if (moMsgHandler_ == &handler) {
        moMsgHandler_ = nullptr;
    }
}

std::intptr_t modMessageHandler::MessagePassed(WindowHandle hWnd, std::uint32_t uMsg, std::uintptr_t wParam,
                                               std::intptr_t lParam) {
    return labelled(u"modMessageHandler.MessagePassed", [&] {
        const std::intptr_t result = mbHookBusy_ ? 0 : forward(uMsg, wParam, lParam);
        return result != 0 ? result : call_previous(hWnd, uMsg, wParam, lParam);
    });
}

std::intptr_t modMessageHandler::forward(std::uint32_t uMsg, std::uintptr_t wParam, std::intptr_t lParam) {
    const RaisedFlag busy(mbHookBusy_);
    if (moMsgHandler_ == nullptr) {
        return 0;
    }
    if (uMsg == message::destroy) {
        moMsgHandler_->UnSetHook();
        return 0;
    }
    return moMsgHandler_->CheckMessage(uMsg, wParam, lParam);
}

std::intptr_t modMessageHandler::call_previous(WindowHandle hWnd, std::uint32_t uMsg, std::uintptr_t wParam,
                                               std::intptr_t lParam) {
    return hook_.call_procedure(mlPrevWndProc_, hWnd, uMsg, wParam, lParam);
}

std::intptr_t modMessageHandler::message_passed(WindowHandle window, std::uint32_t message,
                                                std::uintptr_t wparam, std::intptr_t lparam) {
    return MessagePassed(window, message, wparam, lparam);
}

} // namespace vellora
