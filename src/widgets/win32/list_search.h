// Finding a row as the platform's messages describe it: whole or beginning text, from a row, once around.
#pragma once

#include "widgets/list_rows.h"

#include <windows.h>

#include <commctrl.h>

namespace vellora::win32 {

/// Searches the rows' texts from row `start` on, case ignored; -1 for none. Anything but a text is never
/// found.
std::int32_t search_rows(const ListRows& rows, const LVFINDINFOW& search, std::int32_t start);
std::int32_t search_rows(const ListRows& rows, const LVFINDINFOA& search, std::int32_t start);

} // namespace vellora::win32
