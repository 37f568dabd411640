#include "widgets/win32/reflection.h"

namespace vellora::win32 {

std::optional<LRESULT> reflect(UINT message, WPARAM wparam, LPARAM lparam) {
    const bool reflected =
        message == WM_COMMAND || (message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC);
    const HWND child = reflected ? reinterpret_cast<HWND>(lparam) : nullptr;
    if (child == nullptr) {
        return std::nullopt;
    }
    const LRESULT answer = SendMessageW(child, OCM__BASE + message, wparam, lparam);
    return answer != 0 ? std::optional(answer) : std::nullopt;
}

} // namespace vellora::win32
