#include "screen_report.h"

#include <commctrl.h>

namespace vellora::samples {

namespace {

/// The drop button fills the right end of the field.
HWND drop_button(HWND field) {
    RECT inside;
    GetClientRect(field, &inside);
    return ChildWindowFromPointEx(field, {inside.right - 4, inside.bottom / 2}, CWP_SKIPINVISIBLE);
}

/// The list has the focus for as long as it is open.
HWND open_list() {
    wchar_t name[32] = L"";
    const HWND focus = GetFocus();
    GetClassNameW(focus, name, ARRAYSIZE(name));
    return std::wstring(name) == WC_LISTVIEWW ? focus : nullptr;
}

RECT row_place(HWND list, int row) {
    RECT rect{};
    ListView_GetItemRect(list, row, &rect, LVIR_BOUNDS);
    MapWindowPoints(list, nullptr, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

bool contains(HWND window, HWND inner) {
    return window == inner || IsChild(window, inner);
}

} // namespace

void ScreenReport::update(const DemoForm& form) {
    if (!states_.is_watched() || !form.window())
        return;
    states_.report(L"form", text_of(place_of(form.window())));
    states_.report(L"form looks", form.looks_active() ? L"active" : L"inactive");
    states_.report(L"place of Ordinary text field", text_of(place_of(form.text_field())));
    for (const auto& box : form.boxes())
        report_box(*box);
    report_focus(form);
    report_list();
}

void ScreenReport::report_box(const VelloraBox& box) {
    states_.report(L"place of " + box.name(), text_of(place_of(box.window())));
    states_.report(L"button of " + box.name(), text_of(place_of(drop_button(box.window()))));
    states_.report(L"text of " + box.name(), box.text());
}

void ScreenReport::report_focus(const DemoForm& form) {
    const HWND focus = GetFocus();
    std::wstring owner = contains(form.text_field(), focus) ? L"Ordinary text field" : L"";
    for (const auto& box : form.boxes())
        if (contains(box->window(), focus))
            owner = box->name();
    states_.report(L"focus", owner);
}

void ScreenReport::report_list() {
    const HWND list = open_list();
    states_.report(L"list", list ? text_of(place_of(GetAncestor(list, GA_ROOT))) : L"closed");
    if (!list)
        return;
    const int top = ListView_GetTopIndex(list);
    states_.report(L"rows in list", std::to_wstring(ListView_GetItemCount(list)));
    states_.report(L"top row", std::to_wstring(top));
    states_.report(L"place of top row", text_of(row_place(list, top)));
    states_.report(L"rows in sight", std::to_wstring(ListView_GetCountPerPage(list)));
    states_.report(L"selected row", std::to_wstring(ListView_GetNextItem(list, -1, LVNI_SELECTED)));
}

} // namespace vellora::samples
