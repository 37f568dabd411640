#include "server/unbuilt_members.h"

#include "runtime/host_error.h"

#include <string>

namespace vellora::server {

void raise_unbuilt(std::u16string_view member) {
    constexpr std::int32_t number = error_number::action_not_supported;
    throw HostError(number, {}, standard_description(number) + u" (" + std::u16string(member) + u")");
}

} // namespace vellora::server
