#include "workspace.h"

#include "hosting/screen.h"

#include <algorithm>

namespace vellora::samples {

namespace {

constexpr LONG margin = 12;

int position_of(HWND window, int bar) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_POS;
    GetScrollInfo(window, bar, &info);
    return info.nPos;
}

/// How far to scroll until both ends are to be seen, or the first one.
int missing(LONG from, LONG to, LONG room) {
    return static_cast<int>(std::min(from, std::max(to - room, 0L)));
}

} // namespace

Workspace::Workspace(HWND parent)
    : Pane(parent, WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS | WS_HSCROLL | WS_VSCROLL,
           WS_EX_CONTROLPARENT | WS_EX_CLIENTEDGE) {}

LRESULT Workspace::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
    case WM_SIZE:
        lay_out();
        return 0;
    case WM_HSCROLL:
        scroll(SB_HORZ, wparam);
        return 0;
    case WM_VSCROLL:
        scroll(SB_VERT, wparam);
        return 0;
    case WM_MOUSEWHEEL:
        scroll(SB_VERT, GET_WHEEL_DELTA_WPARAM(wparam) > 0 ? SB_LINEUP : SB_LINEDOWN);
        return 0;
    case reveal_message:
        reveal(*reinterpret_cast<const RECT*>(lparam));
        return 0;
    case WM_ERASEBKGND: {
        const RECT all = inside();
        FillRect(reinterpret_cast<HDC>(wparam), &all, GetSysColorBrush(COLOR_APPWORKSPACE));
        return TRUE;
    }
    case WM_SETFOCUS:
        SetFocus(form());
        return 0;
    case WM_LBUTTONDOWN:
        SetFocus(form());
        return 0;
    }
    return Pane::handle(message, wparam, lparam);
}

void Workspace::lay_out() {
    if (!form())
        return;
    RECT outer{};
    GetWindowRect(form(), &outer);
    const int edges = 2 * scaled(margin);
    // A bar that comes takes room from the other direction.
    for (int pass = 0; pass < 2; ++pass) {
        const RECT client = inside();
        set_range(SB_HORZ, outer.right - outer.left + edges, client.right);
        set_range(SB_VERT, outer.bottom - outer.top + edges, client.bottom);
    }
    SetWindowPos(form(), nullptr, scaled(margin) - position_of(window(), SB_HORZ),
                 scaled(margin) - position_of(window(), SB_VERT), 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void Workspace::set_range(int bar, int whole, int page) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE;
    info.nMax = whole - 1;
    info.nPage = static_cast<UINT>(page);
    SetScrollInfo(window(), bar, &info, TRUE);
}

void Workspace::scroll(int bar, WPARAM request) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    GetScrollInfo(window(), bar, &info);
    const int line = scaled(24), page = static_cast<int>(info.nPage);
    switch (LOWORD(request)) {
    case SB_LINEUP:
        info.nPos -= line;
        break;
    case SB_LINEDOWN:
        info.nPos += line;
        break;
    case SB_PAGEUP:
        info.nPos -= page;
        break;
    case SB_PAGEDOWN:
        info.nPos += page;
        break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
        info.nPos = info.nTrackPos;
        break;
    }
    go_to(bar, info.nPos);
}

void Workspace::reveal(RECT place) {
    MapWindowPoints(form(), window(), reinterpret_cast<POINT*>(&place), 2);
    const RECT room = inside();
    go_to(SB_HORZ, position_of(window(), SB_HORZ) + missing(place.left, place.right, room.right));
    go_to(SB_VERT, position_of(window(), SB_VERT) + missing(place.top, place.bottom, room.bottom));
}

void Workspace::go_to(int bar, int position) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_POS;
    info.nPos = position;
    SetScrollInfo(window(), bar, &info, TRUE);
    lay_out();
}

} // namespace vellora::samples
