// Messages that a child sends to its parent about itself come back to the child, so that each constituent
// answers for its own colours and notices. The numbers are those of control containers: OCM_...
#pragma once

#include <windows.h>

#include <olectl.h>

#include <optional>

namespace vellora::win32 {

/// The answer of the child that sent this WM_COMMAND or WM_CTLCOLOR...; nothing when it is no such message,
/// or when the child leaves it to the parent's default.
std::optional<LRESULT> reflect(UINT message, WPARAM wparam, LPARAM lparam);

} // namespace vellora::win32
