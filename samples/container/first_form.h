// The forms the container begins with, and rows to look at.
#pragma once

#include "form_text.h"

#include <VelloraCTL.h>

namespace vellora::samples {

/// A form without controls.
Form empty_form();
/// One with a control of three columns on it.
Form first_form();
/// Puts some rows into a control, with as many columns as it has.
void fill_with_samples(_Vellora& control);

} // namespace vellora::samples
