#include "com/parent_watch.h"

#include "com/activation.h"

#include <commctrl.h>

#include <cstdint>

namespace vellora::com {

namespace {

LRESULT CALLBACK parent_procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR,
                                  DWORD_PTR activation) noexcept {
    // Children still stand when their parent hears of its end.
    if (message == WM_DESTROY)
        reinterpret_cast<Activation*>(activation)->leave_parent();
    return DefSubclassProc(window, message, wparam, lparam);
}

/// Several controls may stand in one window; each has its own entry.
UINT_PTR key_of(const Activation& activation) noexcept {
    return reinterpret_cast<UINT_PTR>(&activation);
}

} // namespace

void watch_parent(HWND parent, Activation& activation) noexcept {
    SetWindowSubclass(parent, parent_procedure, key_of(activation), reinterpret_cast<DWORD_PTR>(&activation));
}

void unwatch_parent(HWND parent, Activation& activation) noexcept {
    if (parent)
        RemoveWindowSubclass(parent, parent_procedure, key_of(activation));
}

} // namespace vellora::com
