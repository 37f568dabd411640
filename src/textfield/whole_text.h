// Selecting everything in a text box.
#pragma once

#include "widgets/text_box.h"

namespace vellora {

void select_whole_text(TextBox& text_box);

} // namespace vellora
