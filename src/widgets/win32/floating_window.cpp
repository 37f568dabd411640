#include "widgets/win32/floating_window.h"

#include "widgets/win32/focus_tracker.h"
#include "widgets/win32/guarded_procedure.h"
#include "widgets/win32/notification_router.h"
#include "widgets/win32/own_window.h"

#include <commctrl.h>

#include <memory>

namespace vellora::win32 {

namespace {

constexpr UINT_PTR subclass_id = 1;

/// Goes with the window it belongs to.
struct Owner {
    HWND home = nullptr;
    FloatingWindowListener* listener = nullptr;
};

// The list covers the window; what shows for a moment while both are being resized should look like it.
LRESULT erase(HWND window, HDC dc) {
    RECT client{};
    GetClientRect(window, &client);
    FillRect(dc, &client, GetSysColorBrush(COLOR_WINDOW));
    return 1;
}

LRESULT paint(HWND window) {
    PAINTSTRUCT paint{};
    BeginPaint(window, &paint);
    EndPaint(window, &paint);
    return 0;
}

// Closing a drop-down is no more than closing the list; the user who asked for it means the form.
LRESULT request_close(const Owner& owner) {
    const HWND form = GetAncestor(owner.home, GA_ROOT);
    if (owner.listener != nullptr) {
        owner.listener->close_requested();
    }
    PostMessageW(form, WM_SYSCOMMAND, SC_CLOSE, 0);
    return 0;
}

LRESULT answer_notification(HWND window, WPARAM wparam, LPARAM lparam) {
    const auto answer = route_notification(lparam);
    return answer ? *answer : DefSubclassProc(window, WM_NOTIFY, wparam, lparam);
}

LRESULT lose_focus(HWND window, const Owner& owner, HWND next) {
    if (owner.listener != nullptr && !IsChild(window, next)) {
        owner.listener->floating_window_left();
    }
    return 0;
}

LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR,
                           DWORD_PTR data) noexcept;

LRESULT end(HWND window, WPARAM wparam, LPARAM lparam, Owner* owner) {
    unmark_floating_window(window);
    RemoveWindowSubclass(window, procedure, subclass_id);
    delete owner;
    return DefSubclassProc(window, WM_NCDESTROY, wparam, lparam);
}

LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR,
                           DWORD_PTR data) noexcept {
    return guarded([&]() -> LRESULT {
        auto* const owner = reinterpret_cast<Owner*>(data);
        switch (message) {
        case WM_CLOSE:
            return request_close(*owner);
        case WM_KILLFOCUS:
            return lose_focus(window, *owner, reinterpret_cast<HWND>(wparam));
        case WM_NCHITTEST:
            return HTCLIENT;
        case WM_ERASEBKGND:
            return erase(window, reinterpret_cast<HDC>(wparam));
        case WM_PAINT:
            return paint(window);
        case WM_NCDESTROY:
            return end(window, wparam, lparam, owner);
        case WM_NOTIFY:
            return answer_notification(window, wparam, lparam);
        default:
            return DefSubclassProc(window, message, wparam, lparam);
        }
    });
}

void add_style(HWND window, int which, LONG_PTR style) {
    SetWindowLongPtrW(window, which, GetWindowLongPtrW(window, which) | style);
}

void add_container_manners(HWND window, std::unique_ptr<Owner> owner) {
    mark_floating_window(window, owner->home);
    if (SetWindowSubclass(window, procedure, subclass_id, reinterpret_cast<DWORD_PTR>(owner.get()))) {
        static_cast<void>(owner.release());
    }
}

} // namespace

HWND create_floating_window(const RECT& place, HWND home, FloatingWindowListener* listener) {
    auto owner = std::make_unique<Owner>(Owner{home, listener});
    const HWND window = CreateWindowExW(WS_EX_TOOLWINDOW, L"Static", L"", WS_POPUP, place.left,
                                        place.top, place.right - place.left, place.bottom - place.top,
                                        GetDesktopWindow(), nullptr, module_instance(), nullptr);
    if (window != nullptr) {
        add_container_manners(window, std::move(owner));
    }
    return window;
}

// The first erasing covers the children too, so that none starts black. Once shown, the window is not activated
// again: a window manager would pass the form's active caption on to it with the first click into the list.
void show_floating_window(HWND window) {
    ShowWindow(window, SW_SHOW);
    add_style(window, GWL_STYLE, WS_CLIPCHILDREN);
    add_style(window, GWL_EXSTYLE, WS_EX_NOACTIVATE);
    RedrawWindow(window, nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

} // namespace vellora::win32
