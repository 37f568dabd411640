#include "server/message_module.h"

#include "dropdown/modMessageHandler.h"
#include "widgets/win32/window_hook_peer.h"

namespace vellora::server {

modMessageHandler& message_module() {
    thread_local win32::WindowHookPeer hook;
    thread_local modMessageHandler module(hook);
    return module;
}

} // namespace vellora::server
