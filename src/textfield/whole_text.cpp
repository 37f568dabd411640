#include "textfield/whole_text.h"

namespace vellora {

void select_whole_text(TextBox& text_box) {
    text_box.set_selection_start(0);
    text_box.set_selection_length(static_cast<std::int32_t>(text_box.text().size()));
}

} // namespace vellora
