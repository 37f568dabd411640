#include "widgets/win32/window_hook_peer.h"

#include "widgets/win32/guarded_procedure.h"

namespace vellora::win32 {

namespace {

// A thread hooks its own windows only.
thread_local HookedMessages* receiver = nullptr;

HWND as_window(WindowHandle window) {
    return reinterpret_cast<HWND>(window);
}

LRESULT CALLBACK pass_message(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept {
    if (receiver == nullptr) {
        return DefWindowProcW(window, message, wparam, lparam);
    }
    return guarded([&] {
        return receiver->message_passed(reinterpret_cast<WindowHandle>(window), message, wparam, lparam);
    });
}

} // namespace

void WindowHookPeer::receive(HookedMessages* new_receiver) {
    receiver = new_receiver;
}

WindowProcedure WindowHookPeer::replace_procedure(WindowHandle window) {
    return SetWindowLongPtrW(as_window(window), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&pass_message));
}

void WindowHookPeer::restore_procedure(WindowHandle window, WindowProcedure procedure) {
    SetWindowLongPtrW(as_window(window), GWLP_WNDPROC, static_cast<LONG_PTR>(procedure));
}

std::intptr_t WindowHookPeer::call_procedure(WindowProcedure procedure, WindowHandle window,
                                             std::uint32_t message, std::uintptr_t wparam,
                                             std::intptr_t lparam) {
    return CallWindowProcW(reinterpret_cast<WNDPROC>(procedure), as_window(window), message, wparam, lparam);
}

Notification WindowHookPeer::notification(std::intptr_t lparam) const {
    if (lparam == 0) {
        return {};
    }
    const auto& header = *reinterpret_cast<const NMHDR*>(lparam);
    return {reinterpret_cast<WindowHandle>(header.hwndFrom), header.idFrom,
            static_cast<std::int32_t>(header.code)};
}

} // namespace vellora::win32
