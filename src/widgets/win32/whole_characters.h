// Characters of two units in an edit field. Some platforms move and delete by units there; nobody is to be left with
// half a character.
#pragma once

#include "widgets/win32/edit_window.h"

namespace vellora::win32 {

/// Before a key is passed on: when it deletes the character beside the caret, it will take the whole of it.
void spare_no_half(const EditWindow& edit, const EditMessage& message);
/// After a key or the mouse was passed on: the caret and the ends of the selection stand beside characters.
void settle_caret(const EditWindow& edit, const EditMessage& message);

} // namespace vellora::win32
