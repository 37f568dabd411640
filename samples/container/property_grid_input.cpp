// What the property grid's windows hear: keys that begin an edit, the mouse, and what scrolls the field along.
#include "hosting/child_window.h"
#include "hosting/report_list.h"
#include "property_grid.h"

namespace vellora::samples {

namespace {

constexpr UINT accept_message = WM_APP + 3;

int line_height(HWND list) {
    const HDC canvas = GetDC(list);
    const HGDIOBJ before = SelectObject(canvas, reinterpret_cast<HFONT>(SendMessageW(list, WM_GETFONT, 0, 0)));
    TEXTMETRICW metrics{};
    GetTextMetricsW(canvas, &metrics);
    SelectObject(canvas, before);
    ReleaseDC(list, canvas);
    return metrics.tmHeight;
}

/// Whether it is the notice `code` of a row that is chosen or is no longer.
bool tells_of_choice(const NMHDR& notice, UINT code) {
    const auto& item = reinterpret_cast<const NMLISTVIEW&>(notice);
    return notice.code == code && ((item.uNewState ^ item.uOldState) & LVIS_SELECTED) != 0;
}

} // namespace

LRESULT PropertyGrid::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
    case WM_SIZE:
        lay_out();
        return 0;
    case WM_NOTIFY: {
        auto& notice = *reinterpret_cast<NMHDR*>(lparam);
        if (notice.code == static_cast<UINT>(NM_CUSTOMDRAW))
            return draw(reinterpret_cast<NMLVCUSTOMDRAW&>(notice));
        notified_by_list(notice);
        return 0;
    }
    case accept_message:
        accept();
        return 0;
    case WM_SETFOCUS:
        SetFocus(list_);
        return 0;
    }
    return Pane::handle(message, wparam, lparam);
}

void PropertyGrid::lay_out() {
    const RECT all = inside();
    const int top = line_height(list_) + scaled(4);
    move_window(label_, {0, 0, all.right, top});
    move_window(list_, {0, top, all.right, all.bottom});
    const int width = all.right - GetSystemMetrics(SM_CXVSCROLL) - 2 * GetSystemMetrics(SM_CXEDGE);
    ListView_SetColumnWidth(list_, name_column, width * 46 / 100);
    ListView_SetColumnWidth(list_, value_column, width - width * 46 / 100);
    place_editor();
}

void PropertyGrid::notified_by_list(NMHDR& notice) {
    if (notice.hwndFrom != list_)
        return;
    if (tells_of_choice(notice, static_cast<UINT>(LVN_ITEMCHANGING)) && editor_.has_focus())
        leave_value(); // afterwards nobody knows any more whose value was typed
    else if (tells_of_choice(notice, static_cast<UINT>(LVN_ITEMCHANGED)))
        offer();
    else if (notice.code == static_cast<UINT>(NM_DBLCLK))
        take_next();
}

LRESULT PropertyGrid::draw(NMLVCUSTOMDRAW& row) const {
    if (row.nmcd.dwDrawStage == CDDS_PREPAINT)
        return CDRF_NOTIFYITEMDRAW;
    if (row.nmcd.dwDrawStage != CDDS_ITEMPREPAINT)
        return CDRF_DODEFAULT;
    const Property* const property = property_in(static_cast<int>(row.nmcd.dwItemSpec));
    if (!property) {
        SelectObject(row.nmcd.hdc, bold_);
        row.clrTextBk = GetSysColor(COLOR_BTNFACE);
        return CDRF_NEWFONT;
    }
    if (!property->writable)
        row.clrText = GetSysColor(COLOR_GRAYTEXT);
    return CDRF_DODEFAULT;
}

void PropertyGrid::notified_by_editor(HWND from, int notice) {
    if (editor_.is_choice(from, notice))
        PostMessageW(window(), accept_message, 0, 0); // the field has the chosen text only afterwards
    else if (editor_.is_left(from, notice))
        leave_value();
}

// Keys that begin an edit. What scrolls the list moves the field along.
LRESULT CALLBACK PropertyGrid::list_procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR,
                                              DWORD_PTR self) noexcept {
    auto& grid = *reinterpret_cast<PropertyGrid*>(self);
    try {
        if (grid.takes_key(message, wparam))
            return 0;
        if (message == WM_COMMAND)
            grid.notified_by_editor(reinterpret_cast<HWND>(lparam), HIWORD(wparam));
        const LRESULT result = DefSubclassProc(window, message, wparam, lparam);
        if (message == WM_VSCROLL || message == WM_MOUSEWHEEL || message == WM_NOTIFY || message == WM_HSCROLL)
            grid.place_editor();
        return result;
    } catch (...) {
        return 0; // exceptions must not reach the system
    }
}

bool PropertyGrid::takes_key(UINT message, WPARAM wparam) {
    const bool drops = (message == WM_KEYDOWN && wparam == VK_F4) || (message == WM_SYSKEYDOWN && wparam == VK_DOWN);
    if (drops || (message == WM_KEYDOWN && (wparam == VK_F2 || wparam == VK_RETURN))) {
        edit();
        if (drops)
            editor_.drop_list();
        return true;
    }
    if (message != WM_CHAR)
        return false;
    if (wparam >= L' ' && chosen()) {
        edit();
        SendMessageW(GetFocus(), WM_CHAR, wparam, 1);
    }
    return true;
}

} // namespace vellora::samples
