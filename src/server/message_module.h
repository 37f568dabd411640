// The window-message hook of this thread, shared by all its controls.
#pragma once

namespace vellora {
class modMessageHandler;
}

namespace vellora::server {

modMessageHandler& message_module();

} // namespace vellora::server
