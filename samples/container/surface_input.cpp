// What the form's window hears: the mouse and the keys of a designer, and what a running form owes its controls.
#include "form_surface.h"
#include "form_units.h"
#include "workspace.h"

#include <windowsx.h>

namespace vellora::samples {

namespace {

POINT point_in(LPARAM mouse) {
    return {GET_X_LPARAM(mouse), GET_Y_LPARAM(mouse)};
}

/// Where the mouse was at the message that is handled.
POINT last_mouse(HWND window) {
    const DWORD position = GetMessagePos();
    POINT mouse = point_in(static_cast<LPARAM>(position));
    ScreenToClient(window, &mouse);
    return mouse;
}

bool held(int key) {
    return GetKeyState(key) < 0;
}

} // namespace

LRESULT FormSurface::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
    case WM_ERASEBKGND:
        erase(reinterpret_cast<HDC>(wparam));
        return TRUE;
    case WM_NCHITTEST:
        return edge_at(lparam);
    case WM_NCACTIVATE:
        return Pane::handle(message, TRUE, lparam); // it is the only form there is
    case WM_EXITSIZEMOVE:
        sized_by_user();
        return 0;
    case WM_DESTROY:
        clear();
        return 0;
    }
    if (!running_)
        return handle_design(message, wparam, lparam);
    if (message == WM_SETFOCUS)
        pass_focus_on();
    return Pane::handle(message, wparam, lparam);
}

LRESULT FormSurface::handle_design(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
    case WM_LBUTTONDOWN:
        press(point_in(lparam));
        return 0;
    case WM_LBUTTONDBLCLK:
        shell_.edit_properties();
        return 0;
    case WM_NCLBUTTONDOWN:
        SetFocus(window());
        choose(nullptr);
        break;
    case grip_message:
        SetFocus(window());
        begin_drag(last_mouse(window()), static_cast<unsigned>(wparam));
        return 0;
    case WM_MOUSEMOVE:
        if (drag_.active())
            drag_.follow(point_in(lparam));
        return 0;
    case WM_LBUTTONUP:
        end_drag();
        return 0;
    case WM_CAPTURECHANGED:
        drag_.end();
        return 0;
    case WM_KEYDOWN:
        if (design_key(wparam))
            return 0;
        break;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        return 0;
    }
    return Pane::handle(message, wparam, lparam);
}

bool FormSurface::design_key(WPARAM key) {
    switch (key) {
    case VK_TAB:
        choose_next(held(VK_SHIFT));
        reveal_chosen();
        return true;
    case VK_DELETE:
        remove_chosen();
        return true;
    case VK_INSERT:
        insert(L"VelloraCTL.Vellora");
        return true;
    case VK_RETURN:
        shell_.edit_properties();
        return true;
    case VK_ESCAPE:
        if (!drag_.active())
            choose(nullptr);
        drag_.cancel();
        end_drag();
        return true;
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN:
        if (!chosen_)
            return true;
        chosen_->move(nudged(chosen_->place(), key, held(VK_SHIFT), held(VK_CONTROL)));
        place_changed();
        reveal_chosen();
        shell_.values_changed(true);
        return true;
    }
    return false;
}

// Keys reach what is out of sight; under the mouse nothing is to move away.
void FormSurface::reveal_chosen() const {
    if (!chosen_)
        return;
    const RECT place = chosen_->place();
    SendMessageW(GetParent(window()), reveal_message, 0, reinterpret_cast<LPARAM>(&place));
}

void FormSurface::press(POINT mouse) {
    SetFocus(window());
    choose(control_at(mouse));
    begin_drag(mouse, grip_whole);
}

void FormSurface::begin_drag(POINT mouse, unsigned edges) {
    if (!chosen_)
        return;
    drag_.begin(mouse, chosen_->place(), edges, [this](const RECT& place) {
        chosen_->move(place);
        place_changed();
        shell_.values_changed(true);
    });
    SetCapture(window());
}

void FormSurface::end_drag() {
    drag_.end();
    if (GetCapture() == window())
        ReleaseCapture();
}

// The form stays where it is; its right and lower edge size it while it is designed.
LRESULT FormSurface::edge_at(LPARAM mouse) {
    const LRESULT place = Pane::handle(WM_NCHITTEST, 0, mouse);
    const bool sizes = place == HTRIGHT || place == HTBOTTOM || place == HTBOTTOMRIGHT;
    return place == HTCLIENT || (sizes && !running_) ? place : HTBORDER;
}

void FormSurface::sized_by_user() {
    const RECT client = inside();
    resize({twips_of(client.right), twips_of(client.bottom)});
    shell_.values_changed(true);
}

void FormSurface::erase(HDC canvas) const {
    const RECT all = inside();
    FillRect(canvas, &all, GetSysColorBrush(COLOR_BTNFACE));
    if (!running_)
        paint_grid(canvas);
}

// A pattern of one dot repeats much faster than dots are set.
void FormSurface::paint_grid(HDC canvas) const {
    const int step = pixels_of(grid_twips);
    const HDC memory = CreateCompatibleDC(canvas);
    const HBITMAP tile = CreateCompatibleBitmap(canvas, step, step);
    const HGDIOBJ before = SelectObject(memory, tile);
    const RECT whole{0, 0, step, step};
    FillRect(memory, &whole, GetSysColorBrush(COLOR_BTNFACE));
    SetPixel(memory, 0, 0, GetSysColor(COLOR_BTNTEXT));
    SelectObject(memory, before);
    DeleteDC(memory);
    const HBRUSH brush = CreatePatternBrush(tile);
    const RECT all = inside();
    FillRect(canvas, &all, brush);
    DeleteObject(brush);
    DeleteObject(tile);
}

bool FormSurface::takes(MSG& message) {
    if (!running_)
        return false;
    follow_focus();
    const HWND root = GetAncestor(window(), GA_ROOT);
    const bool elsewhere = message.hwnd == root || (IsChild(root, message.hwnd) && !contains(message.hwnd));
    return !elsewhere && hosted_->takes(message);
}

// A running form has no use for the keyboard, but one that nothing can be done on keeps the keys to itself.
void FormSurface::pass_focus_on() {
    if (running_ && GetFocus() == window() && GetNextDlgTabItem(window(), nullptr, FALSE))
        hosted_->window_heard(WM_SETFOCUS, 0);
}

// The control that is worked with is the one whose values are shown.
void FormSurface::follow_focus() {
    const HWND focus = GetFocus();
    if (!focus || focus == followed_)
        return;
    followed_ = focus;
    for (const auto& control : controls_)
        if (const HWND one = control->window(); one && (one == focus || IsChild(one, focus)))
            return choose(control.get());
}

void FormSurface::form_activated(bool active) {
    if (running_)
        hosted_->window_heard(WM_ACTIVATE, active ? WA_ACTIVE : WA_INACTIVE);
}

void FormSurface::left() {
    hosted_->deactivate_current();
}

} // namespace vellora::samples
