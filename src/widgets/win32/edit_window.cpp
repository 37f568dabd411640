#include "widgets/win32/edit_window.h"

#include "widgets/win32/guarded_procedure.h"
#include "widgets/win32/own_window.h"

#include <commctrl.h>

#include <algorithm>
#include <new>

namespace vellora::win32 {

namespace {

constexpr UINT_PTR subclass_id = 1;
constexpr DWORD edit_style = WS_CHILD | WS_CLIPSIBLINGS | WS_TABSTOP | ES_AUTOHSCROLL;

DWORD alignment_style(TextAlignment alignment) {
    switch (alignment) {
    case TextAlignment::right:
        return ES_RIGHT;
    case TextAlignment::centered:
        return ES_CENTER;
    default:
        return ES_LEFT;
    }
}

} // namespace

EditWindow::EditWindow(HWND parent, TextAlignment alignment, EditWindowClient& client) : client_(client) {
    window_.reset(CreateWindowExW(0, WC_EDITW, L"", edit_style | alignment_style(alignment), 0, 0, 0, 0,
                                  parent, nullptr, module_instance(), nullptr));
    if (!window_ ||
        !SetWindowSubclass(window_.get(), procedure, subclass_id, reinterpret_cast<DWORD_PTR>(this))) {
        throw std::bad_alloc();
    }
}

EditWindow::~EditWindow() {
    if (window_) {
        RemoveWindowSubclass(window_.get(), procedure, subclass_id);
    }
}

EditWindow::Selection EditWindow::selection() const {
    DWORD start = 0;
    DWORD end = 0;
    send(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    return {static_cast<std::int32_t>(start), static_cast<std::int32_t>(end)};
}

std::int32_t EditWindow::room() const {
    const std::int32_t kept = GetWindowTextLengthW(handle()) - selection().length();
    return std::max(0, static_cast<std::int32_t>(send(EM_GETLIMITTEXT)) - kept);
}

bool EditWindow::locked() const {
    return (GetWindowLongPtrW(handle(), GWL_STYLE) & ES_READONLY) != 0;
}

LRESULT EditWindow::pass_on(const EditMessage& message) const {
    return DefSubclassProc(window_.get(), message.id, message.wparam, message.lparam);
}

LRESULT EditWindow::end(HWND window, const EditMessage& message) {
    RemoveWindowSubclass(window, procedure, subclass_id);
    static_cast<void>(window_.release());
    return DefSubclassProc(window, message.id, message.wparam, message.lparam);
}

LRESULT CALLBACK EditWindow::procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR,
                                       DWORD_PTR edit) noexcept {
    return guarded([&] {
        auto& self = *reinterpret_cast<EditWindow*>(edit);
        const EditMessage whole{message, wparam, lparam};
        return message == WM_NCDESTROY ? self.end(window, whole) : self.client_.edit_message(whole);
    });
}

} // namespace vellora::win32
