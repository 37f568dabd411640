#include "support/container/control_windows.h"

#include <algorithm>
#include <commctrl.h>
#include <wchar.h>

namespace vellora::test {
namespace {

struct Search {
    const wchar_t* part;
    bool visible;
    HWND found = nullptr;
};

bool contains(const std::wstring& text, const wchar_t* part) {
    std::wstring folded = text;
    std::transform(folded.begin(), folded.end(), folded.begin(),
                   [](wchar_t c) { return static_cast<wchar_t>(towlower(c)); });
    return folded.find(part) != std::wstring::npos;
}

BOOL CALLBACK look_at(HWND window, LPARAM context) noexcept {
    auto& search = *reinterpret_cast<Search*>(context);
    const bool shown = (GetWindowLongW(window, GWL_STYLE) & WS_VISIBLE) != 0;
    if (contains(class_of(window), search.part) && (shown || !search.visible))
        search.found = window;
    return search.found == nullptr;
}

HWND find_child(HWND parent, const wchar_t* class_part, bool visible) {
    Search search{class_part, visible};
    if (parent)
        EnumChildWindows(parent, look_at, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

BOOL CALLBACK collect_floating(HWND window, LPARAM context) noexcept {
    const LONG style = GetWindowLongW(window, GWL_STYLE);
    const LONG extended = GetWindowLongW(window, GWL_EXSTYLE);
    constexpr LONG floating = static_cast<LONG>(WS_POPUP | WS_VISIBLE);
    if (class_of(window) == L"Static" && (style & floating) == floating && (extended & WS_EX_TOOLWINDOW))
        reinterpret_cast<std::vector<HWND>*>(context)->push_back(window);
    return TRUE;
}

RECT on_screen(HWND window, RECT rect) {
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

} // namespace

std::wstring class_of(HWND window) {
    wchar_t name[128] = L"";
    GetClassNameW(window, name, ARRAYSIZE(name));
    return name;
}

HWND text_field(HWND control) {
    return find_child(control, L"edit", true);
}
HWND drop_button(HWND control) {
    return find_child(control, L"button", true);
}

std::vector<HWND> floating_windows() {
    std::vector<HWND> result;
    EnumThreadWindows(GetCurrentThreadId(), collect_floating, reinterpret_cast<LPARAM>(&result));
    return result;
}

HWND floating_window() {
    const std::vector<HWND> all = floating_windows();
    return all.empty() ? nullptr : all.front();
}

HWND list_of(HWND floating_or_control) {
    return find_child(floating_or_control, L"syslistview32", false);
}

HWND header_of(HWND list) {
    return reinterpret_cast<HWND>(list ? SendMessageW(list, LVM_GETHEADER, 0, 0) : 0);
}

RECT screen_rect(HWND window) {
    RECT rect{};
    if (window)
        GetWindowRect(window, &rect);
    return rect;
}

RECT row_rect(HWND list, int row) {
    RECT rect{LVIR_BOUNDS, 0, 0, 0};
    SendMessageW(list, LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&rect));
    return on_screen(list, rect);
}

RECT header_rect(HWND list, int column) {
    RECT rect{};
    HWND header = header_of(list);
    SendMessageW(header, HDM_GETITEMRECT, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&rect));
    return on_screen(header, rect);
}

} // namespace vellora::test
