#include "widgets/win32/window_widget.h"

#include "widgets/win32/screen_metrics.h"

namespace vellora::win32 {

RECT window_place(HWND window) {
    RECT place{};
    if (GetWindowRect(window, &place)) {
        MapWindowPoints(nullptr, GetAncestor(window, GA_PARENT), reinterpret_cast<POINT*>(&place), 2);
    }
    return place;
}

Bounds window_bounds(HWND window) {
    const RECT place = window_place(window);
    return {twips_x(place.left), twips_y(place.top), twips_x(place.right - place.left),
            twips_y(place.bottom - place.top)};
}

void move_window(HWND window, const Bounds& bounds) {
    MoveWindow(window, pixels_x(bounds.left), pixels_y(bounds.top), pixels_x(bounds.width),
               pixels_y(bounds.height), TRUE);
}

bool is_window_shown(HWND window) {
    return (GetWindowLongPtrW(window, GWL_STYLE) & WS_VISIBLE) != 0;
}

namespace {

// What is hidden leaves its picture until whatever lies behind it is painted: another window that takes its place
// at once, as the drop buttons do in turn, then shows no gap.
void hide_window(HWND window) {
    const RECT place = window_place(window);
    const HWND parent = GetAncestor(window, GA_PARENT);
    SendMessageW(window, WM_SHOWWINDOW, FALSE, 0); // this and the focus as ShowWindow does
    SetWindowPos(window, nullptr, 0, 0, 0, 0,
                 SWP_HIDEWINDOW | SWP_NOREDRAW | SWP_NOACTIVATE | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER);
    const HWND focus = GetFocus();
    if (focus == window || IsChild(window, focus)) {
        SetFocus(parent);
    }
    // Without a window it would be the whole desktop.
    if (IsWindow(parent)) {
        RedrawWindow(parent, &place, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    }
}

} // namespace

void show_window(HWND window, bool show) {
    if (show) {
        ShowWindow(window, SW_SHOWNA);
    } else if (is_window_shown(window)) {
        hide_window(window);
    }
}

void redraw(HWND window) {
    if (window != nullptr) {
        InvalidateRect(window, nullptr, TRUE);
    }
}

} // namespace vellora::win32
