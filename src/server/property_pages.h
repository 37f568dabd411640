// What the property pages of the control are about.
#pragma once

#include "com/page_class.h"

namespace vellora::server {

/// In the order a design tool shows them.
std::span<const com::PageClass> property_pages() noexcept;

} // namespace vellora::server
