#include "widgets/win32/focus_tracker.h"

namespace vellora::win32 {

namespace {

constexpr wchar_t home_property[] = L"VelloraFloatingWindowHome";

} // namespace

bool FocusTracker::owns(HWND window) const {
    if (window == nullptr) {
        return false;
    }
    return window == home_ || IsChild(home_, window) ||
           GetPropW(GetAncestor(window, GA_ROOT), home_property) == static_cast<HANDLE>(home_);
}

// From a floating window the focus comes back by way of the form, which nobody here is told of.
void FocusTracker::arrived_from(HWND previous) {
    if (!inside_ || !(owns(previous) || IsChild(previous, home_))) {
        inside_ = true;
        listener_.focus_entered();
    }
}

// Who hears of losing the focus may have brought it back already.
void FocusTracker::left_to(HWND next) {
    if (inside_ && !owns(next) && !owns(GetFocus())) {
        inside_ = false;
        listener_.focus_left();
    }
}

void FocusTracker::check() {
    left_to(GetFocus());
}

void mark_floating_window(HWND window, HWND home) {
    SetPropW(window, home_property, home);
}

void unmark_floating_window(HWND window) {
    RemovePropW(window, home_property);
}

} // namespace vellora::win32
