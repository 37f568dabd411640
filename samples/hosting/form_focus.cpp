#include "form_focus.h"

namespace vellora::samples {

void FormFocus::form_activated(bool active) {
    if (!active && IsChild(form_, GetFocus()))
        last_ = GetFocus();
}

void FormFocus::give_back() const {
    const bool possible = IsChild(form_, last_) && IsWindowVisible(last_);
    SetFocus(possible ? last_ : GetNextDlgTabItem(form_, nullptr, FALSE));
}

} // namespace vellora::samples
