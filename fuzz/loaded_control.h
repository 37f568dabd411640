// What is done with every control that was made from strange settings: it is loaded, used, saved and loaded again.
#pragma once

#include "support/headless/headless_control.h"
#include "support/headless/property_bag.h"

#include <cstdint>
#include <functional>

namespace vellora::fuzz {

/// A source of decisions; 0 once it is exhausted.
using Choose = std::function<std::uint8_t()>;

/// Whatever the settings are: loading ends whole or in an error that leaves the control loading; a whole control
/// saves settings that give the same control again; and no use of either does harm.
void load_and_use(PropertyBag& bag, test::Mode mode, const Choose& choose);

} // namespace vellora::fuzz
