#include "widgets/win32/form_watch_peer.h"

#include "widgets/win32/guarded_procedure.h"

#include <commctrl.h>

#include <utility>

namespace vellora::win32 {

namespace {

bool moves_or_resizes(const WINDOWPOS& position) {
    constexpr UINT stays = SWP_NOMOVE | SWP_NOSIZE;
    return (position.flags & stays) != stays;
}

bool disturbs(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
    case WM_WINDOWPOSCHANGED:
        return moves_or_resizes(*reinterpret_cast<const WINDOWPOS*>(lparam));
    case WM_SIZE:
        return wparam == SIZE_MINIMIZED;
    case WM_SHOWWINDOW:
    case WM_ENABLE:
        return wparam == FALSE;
    case WM_MOVE:
    case WM_DESTROY:
    case WM_NCDESTROY:
        return true;
    default:
        return false;
    }
}

} // namespace

void FormWatchPeer::watch(WindowHandle form) {
    stop();
    const HWND desktop = GetDesktopWindow();
    for (auto window = reinterpret_cast<HWND>(form); window != nullptr && window != desktop;
         window = GetAncestor(window, GA_PARENT)) {
        if (SetWindowSubclass(window, procedure, id(), reinterpret_cast<DWORD_PTR>(this))) {
            windows_.push_back(window);
        }
    }
}

void FormWatchPeer::stop() {
    for (const HWND window : std::exchange(windows_, {})) {
        RemoveWindowSubclass(window, procedure, id());
    }
}

void FormWatchPeer::tell() const {
    if (listener_ != nullptr) {
        listener_->form_disturbed();
    }
}

LRESULT CALLBACK FormWatchPeer::procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam,
                                          UINT_PTR id, DWORD_PTR watch) noexcept {
    return guarded([&] {
        if (disturbs(message, wparam, lparam)) {
            reinterpret_cast<const FormWatchPeer*>(watch)->tell();
        }
        if (message == WM_NCDESTROY) {
            RemoveWindowSubclass(window, procedure, id);
        }
        return DefSubclassProc(window, message, wparam, lparam);
    });
}

} // namespace vellora::win32
