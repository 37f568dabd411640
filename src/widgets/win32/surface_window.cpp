#include "widgets/win32/surface_window.h"

#include "widgets/win32/face_painter.h"
#include "widgets/win32/guarded_procedure.h"
#include "widgets/win32/notification_router.h"
#include "widgets/win32/reflection.h"
#include "widgets/win32/screen_metrics.h"
#include "widgets/win32/visual_style.h"
#include "widgets/win32/wide_text.h"
#include "widgets/win32/window_widget.h"

#include <utility>

namespace vellora::win32 {

namespace {

constexpr DWORD surface_style = WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS | WS_TABSTOP;
constexpr DWORD surface_extended_style = WS_EX_CLIENTEDGE | WS_EX_CONTROLPARENT;

const WindowClass& surface_class() {
    static const WindowClass window_class(L"VelloraSurface", false);
    return window_class;
}

RECT outer_rect(HWND window) {
    RECT rect{};
    GetWindowRect(window, &rect);
    return rect;
}

// Only top-level windows hear of a new look; each passes it on.
BOOL CALLBACK pass_to_child(HWND child, LPARAM data) {
    const auto& message = *reinterpret_cast<const MSG*>(data);
    SendMessageW(child, message.message, message.wParam, message.lParam);
    return TRUE;
}

void set_outer_height(HWND window, int height) {
    const RECT outer = outer_rect(window);
    SetWindowPos(window, nullptr, 0, 0, outer.right - outer.left, height,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace

SurfaceWindow::SurfaceWindow(HWND parking) {
    create(surface_class(), surface_style, surface_extended_style, parking);
    focus_tracker_.set_home(handle());
}

// What is in a minimised window counts as visible.
bool SurfaceWindow::shown() const {
    HWND window = handle();
    while (window != nullptr && IsIconic(window) == FALSE) {
        window = GetAncestor(window, GA_PARENT);
    }
    return window == nullptr && IsWindowVisible(handle()) != FALSE;
}

float SurfaceWindow::width() const {
    const RECT outer = outer_rect(handle());
    return twips_x(outer.right - outer.left);
}

float SurfaceWindow::height() const {
    const RECT outer = outer_rect(handle());
    return twips_y(outer.bottom - outer.top);
}

float SurfaceWindow::client_width() const {
    RECT client{};
    GetClientRect(handle(), &client);
    return twips_x(client.right);
}

void SurfaceWindow::set_height(float height) {
    const int pixels = pixels_y(height);
    const RECT outer = outer_rect(handle());
    if (pixels == outer.bottom - outer.top) {
        return;
    }
    if (host_ != nullptr) {
        host_->surface_wants_height(pixels);
    } else {
        set_outer_height(handle(), pixels);
    }
}

float SurfaceWindow::text_height(std::u16string_view text) const {
    const std::u16string copy(text);
    const WindowDc dc(handle());
    const SavedDc saved(dc.get());
    SelectObject(dc.get(), font_.handle());
    SIZE extent{};
    GetTextExtentPoint32W(dc.get(), wide(copy), static_cast<int>(copy.size()), &extent);
    return twips_y(extent.cy);
}

void SurfaceWindow::set_back_color(OleColor color) {
    back_color_ = checked_color(color);
    redraw(handle());
}

void SurfaceWindow::refresh() {
    if (handle() != nullptr) {
        RedrawWindow(handle(), nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    }
}

void SurfaceWindow::announce(Announcement what) {
    const DWORD event = what == Announcement::value_changed ? EVENT_OBJECT_VALUECHANGE : EVENT_OBJECT_STATECHANGE;
    NotifyWinEvent(event, handle(), OBJID_CLIENT, CHILDID_SELF);
    if (what == Announcement::list_opened_or_closed && host_ != nullptr) {
        host_->surface_list_opened_or_closed();
    }
}

LRESULT SurfaceWindow::accessible_object(HWND window, WPARAM wparam, LPARAM lparam) {
    return host_ != nullptr ? host_->surface_object(window, wparam, lparam) : 0;
}

float SurfaceWindow::twips_per_pixel_x() const {
    return static_cast<float>(win32::twips_per_pixel_x());
}
float SurfaceWindow::twips_per_pixel_y() const {
    return static_cast<float>(win32::twips_per_pixel_y());
}

LRESULT SurfaceWindow::on_message(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
    case WM_SHOWWINDOW:
        return tell_shown(window, wparam, lparam);
    case WM_SIZE:
        return tell_resized();
    case WM_ENABLE:
        return tell_enabled(window, wparam);
    case WM_NCPAINT:
        return paint_border(window, wparam, lparam);
    case WM_ERASEBKGND:
        return erase(window, reinterpret_cast<HDC>(wparam));
    case WM_GETOBJECT:
        return describe(window, wparam, lparam);
    case WM_SETFOCUS:
        return take_focus(window, reinterpret_cast<HWND>(wparam));
    case WM_KILLFOCUS:
        return lose_focus(reinterpret_cast<HWND>(wparam));
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED:
    case WM_SETTINGCHANGE:
        return change_look(window, message, wparam, lparam);
    case WM_DESTROY:
        return tell_destroyed();
    default:
        return answer_child(window, message, wparam, lparam);
    }
}

LRESULT SurfaceWindow::answer_child(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    const auto answer = message == WM_NOTIFY ? route_notification(lparam) : reflect(message, wparam, lparam);
    return answer ? *answer : DefWindowProcW(window, message, wparam, lparam);
}

LRESULT SurfaceWindow::describe(HWND window, WPARAM wparam, LPARAM lparam) {
    const LRESULT own = accessible_object(window, wparam, lparam);
    return own != 0 ? own : DefWindowProcW(window, WM_GETOBJECT, wparam, lparam);
}

LRESULT SurfaceWindow::erase(HWND window, HDC dc) {
    RECT client{};
    GetClientRect(window, &client);
    FillRect(dc, &client, background_.get(back_color_));
    return 1;
}

LRESULT SurfaceWindow::paint_border(HWND window, WPARAM wparam, LPARAM lparam) {
    if (!uses_visual_styles()) {
        return DefWindowProcW(window, WM_NCPAINT, wparam, lparam);
    }
    RECT outer = outer_rect(window);
    OffsetRect(&outer, -outer.left, -outer.top);
    const WindowDc dc = WindowDc::whole(window);
    paint_field_border(dc.get(), outer, IsWindowEnabled(window) != 0);
    return 0;
}

// The surface has no use for the keyboard itself: the text box in use, its only tab stop, takes the focus.
LRESULT SurfaceWindow::take_focus(HWND window, HWND previous) {
    const Lifeline::Watch watch(lifeline_);
    focus_tracker_.arrived_from(previous);
    const HWND tab_stop = GetNextDlgTabItem(window, nullptr, FALSE);
    if (!watch.alive() || GetFocus() != window || tab_stop == nullptr || tab_stop == window) {
        return 0;
    }
    passing_focus_on_ = true;
    SetFocus(tab_stop);
    if (watch.alive()) {
        passing_focus_on_ = false;
    }
    return 0;
}

// A focus that only passed through on its way to the text box was never the surface's own.
LRESULT SurfaceWindow::lose_focus(HWND next) {
    const Lifeline::Watch watch(lifeline_);
    if (!std::exchange(passing_focus_on_, false) && listener_ != nullptr) {
        listener_->surface_lost_focus();
    }
    if (watch.alive()) {
        focus_tracker_.left_to(next);
    }
    return 0;
}

LRESULT SurfaceWindow::change_look(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    MSG changed{window, message, wparam, lparam, 0, {}};
    EnumChildWindows(window, pass_to_child, reinterpret_cast<LPARAM>(&changed));
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
    return DefWindowProcW(window, message, wparam, lparam);
}

LRESULT SurfaceWindow::tell_shown(HWND window, WPARAM wparam, LPARAM lparam) {
    if (wparam == FALSE && listener_ != nullptr) {
        listener_->surface_withdrawn();
    }
    return DefWindowProcW(window, WM_SHOWWINDOW, wparam, lparam);
}

LRESULT SurfaceWindow::tell_enabled(HWND window, WPARAM wparam) {
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME);
    if (wparam == FALSE && listener_ != nullptr) {
        listener_->surface_withdrawn();
    }
    return 0;
}

LRESULT SurfaceWindow::tell_resized() {
    if (listener_ != nullptr) {
        listener_->surface_resized();
    }
    return 0;
}

LRESULT SurfaceWindow::tell_destroyed() {
    if (listener_ != nullptr) {
        listener_->surface_destroyed();
    }
    return 0;
}

void SurfaceWindow::tell_font(bool changed) {
    if (changed && listener_ != nullptr) {
        listener_->surface_font_changed();
    }
}

void SurfaceWindow::focus_entered() {
    if (host_ != nullptr) {
        host_->surface_focus_entered();
    }
}

// Whoever moved the focus, a closing list perhaps, is not to suffer from what goes wrong in whom it left.
void SurfaceWindow::focus_left() {
    const Lifeline::Watch self(lifeline_);
    if (listener_ != nullptr) {
        guarded([&] { return listener_->surface_focus_left(), 0; });
    }
    if (self.alive() && host_ != nullptr) {
        host_->surface_focus_left();
    }
}

} // namespace vellora::win32
