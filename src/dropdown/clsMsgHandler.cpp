#include "dropdown/clsMsgHandler.h"

#include "dropdown/modMessageHandler.h"
#include "runtime/procedure_label.h"

#include <algorithm>

namespace vellora {

clsMsgHandler::clsMsgHandler(modMessageHandler& module, MessageRecievedListener& listener)
    : module_(module), listener_(listener) {}

clsMsgHandler::~clsMsgHandler() {
    try {
        UnSetHook();
    } catch (...) {
        // The window is gone already; there is nothing left to put back.
    }
    module_.forget(*this);
}

bool clsMsgHandler::AddMessage(std::uint32_t uMsg) {
    return labelled(u"clsMsgHandler.AddMessage", [&] {
        if (mbHooked_ || std::ranges::find(malMessages_, uMsg) != malMessages_.end()) {
            return false;
        }
        malMessages_.push_back(uMsg);
        return true;
    });
}

void clsMsgHandler::SetHook(WindowHandle hWnd) {
    labelled(u"clsMsgHandler.SetHook", [&] {
        if (malMessages_.empty()) {
            return;
        }
        mlHookedWnd_ = hWnd;
        module_.forward_to(this);
        module_.ModSetHook(hWnd);
        mbHooked_ = true;
    });
}

void clsMsgHandler::UnSetHook() {
    labelled(u"clsMsgHandler.UnSetHook", [&] {
        if (!mbHooked_) {
            return;
        }
        module_.forward_to(this);
        module_.unhook(mlHookedWnd_);
        mbHooked_ = false;
    });
}

std::intptr_t clsMsgHandler::CheckMessage(std::uint32_t uMsg, std::uintptr_t wParam, std::intptr_t lParam) {
    return labelled(u"clsMsgHandler.CheckMessage", [&] {
        std::intptr_t lRetVal = 0;
        if (std::ranges::find(malMessages_, uMsg) != malMessages_.end()) {
            listener_.MsgHandler_MessageRecieved(uMsg, wParam, lParam, lRetVal);
        }
        return lRetVal;
    });
}

} // namespace vellora
