#include "widgets/win32/list_window.h"

#include <new>

namespace vellora::win32 {

namespace {

constexpr wchar_t list_property[] = L"VelloraListWindow";

// The selection stays marked while the floating window is being opened and the focus is still elsewhere.
constexpr DWORD list_style = WS_CHILD | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | LVS_REPORT | LVS_OWNERDATA |
                             LVS_SINGLESEL | LVS_SHOWSELALWAYS;
// Who opens a combo box expects the whole row to be highlighted.
constexpr DWORD list_extended_style = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER;

void load_common_controls() noexcept {
    const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES};
    InitCommonControlsEx(&classes);
}

} // namespace

ListWindow::ListWindow(HWND parent) {
    load_common_controls();
    handle_ = CreateWindowExW(WS_EX_CLIENTEDGE, WC_LISTVIEWW, L"", list_style, 0, 0, 0, 0, parent, nullptr,
                              nullptr, nullptr);
    if (!handle_)
        throw std::bad_alloc();
    replace_procedure();
    native(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, static_cast<LPARAM>(list_extended_style));
}

ListWindow::~ListWindow() {
    client_ = nullptr;
    if (handle_ && !DestroyWindow(handle_))
        RemovePropW(handle_, list_property);
}

void ListWindow::replace_procedure() noexcept {
    SetPropW(handle_, list_property, this);
    platform_procedure_ = reinterpret_cast<WNDPROC>(GetWindowLongPtrW(handle_, GWLP_WNDPROC));
    SetWindowLongPtrW(handle_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&ListWindow::procedure));
}

LRESULT CALLBACK ListWindow::procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept try {
    auto* const list = static_cast<ListWindow*>(GetPropW(window, list_property));
    if (!list)
        return DefWindowProcW(window, message, wparam, lparam);
    if (message == WM_NCDESTROY)
        return list->last_message({message, wparam, lparam});
    if (!list->client_)
        return list->native(message, wparam, lparam);
    return list->client_->list_message({message, wparam, lparam});
} catch (...) {
    return 0;
}

LRESULT ListWindow::last_message(const WindowMessage& message) noexcept {
    RemovePropW(handle_, list_property);
    const LRESULT result = native(message);
    handle_ = nullptr;
    return result;
}

LRESULT ListWindow::native(UINT message, WPARAM wparam, LPARAM lparam) const noexcept {
    return handle_ ? CallWindowProcW(platform_procedure_, handle_, message, wparam, lparam) : 0;
}

bool ListWindow::has_style(DWORD bits) const noexcept {
    return (static_cast<DWORD>(GetWindowLongPtrW(handle_, GWL_STYLE)) & bits) == bits;
}

void ListWindow::set_style(DWORD bits, bool on) noexcept {
    const auto old_style = static_cast<DWORD>(GetWindowLongPtrW(handle_, GWL_STYLE));
    const DWORD style = on ? old_style | bits : old_style & ~bits;
    if (style != old_style)
        SetWindowLongPtrW(handle_, GWL_STYLE, static_cast<LONG_PTR>(style));
}

bool ListWindow::has_extended_style(DWORD bits) const noexcept {
    return (static_cast<DWORD>(native(LVM_GETEXTENDEDLISTVIEWSTYLE)) & bits) == bits;
}

void ListWindow::set_extended_style(DWORD bits, bool on) noexcept {
    native(LVM_SETEXTENDEDLISTVIEWSTYLE, bits, static_cast<LPARAM>(on ? bits : 0));
}

HWND ListWindow::header() const noexcept {
    return reinterpret_cast<HWND>(native(LVM_GETHEADER));
}

RECT ListWindow::client_area() const noexcept {
    RECT area{};
    GetClientRect(handle_, &area);
    return area;
}

} // namespace vellora::win32
