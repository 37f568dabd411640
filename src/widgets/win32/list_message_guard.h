// Keeps messages away from the window that it could not survive, or that would make something else of it than
// a list of rows in columns.
#pragma once

#include "widgets/win32/list_window.h"

namespace vellora::win32 {

/// The message lacks the structure it speaks of, or is about groups, tiles, footers and other things that a
/// list in report style does not have. It is answered with 0.
bool is_refused(const WindowMessage& message);

} // namespace vellora::win32
