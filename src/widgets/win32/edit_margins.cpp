#include "widgets/win32/edit_margins.h"

#include <algorithm>

namespace vellora::win32 {

LRESULT EditMargins::set(const EditMessage& message) {
    if ((message.wparam & EC_LEFTMARGIN) != 0) {
        left_ = LOWORD(message.lparam);
    }
    if ((message.wparam & EC_RIGHTMARGIN) != 0) {
        right_ = HIWORD(message.lparam);
    }
    const LPARAM whole = MAKELPARAM(limited(LOWORD(message.lparam)), limited(HIWORD(message.lparam)));
    return edit_.pass_on({message.id, message.wparam, whole});
}

// With a margin far beyond the field the platform may look for its caret for ever. What is wider than the
// field hides all of the text in any case.
WORD EditMargins::limited(WORD margin) const {
    RECT client{};
    GetClientRect(edit_.handle(), &client);
    return margin == EC_USEFONTINFO ? margin : static_cast<WORD>(std::min<LONG>(margin, client.right));
}

void EditMargins::restore() const {
    if (left_) {
        edit_.send(EM_SETMARGINS, EC_LEFTMARGIN, MAKELPARAM(*left_, 0));
    }
    if (right_) {
        edit_.send(EM_SETMARGINS, EC_RIGHTMARGIN, MAKELPARAM(0, *right_));
    }
}

} // namespace vellora::win32
