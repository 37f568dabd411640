// The groups in which a form designer lists the properties.
#pragma once

#include "com/control_client.h"

#include <optional>

namespace vellora::server {

/// By the member's identifier, whose hundred says what it belongs to (see VelloraCTL.idl). Nothing for
/// identifiers that are not the control's.
std::optional<com::PropertyCategory> property_category(DISPID property) noexcept;

} // namespace vellora::server
