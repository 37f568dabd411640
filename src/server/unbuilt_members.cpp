#include "server/unbuilt_members.h"

#include "runtime/host_error.h"

namespace vellora::server {

void raise_unbuilt(std::u16string_view) {
    throw HostError(error_number::action_not_supported);
}

} // namespace vellora::server
