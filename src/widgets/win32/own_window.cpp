#include "widgets/win32/own_window.h"

#include <new>

// The linker's own name for the first byte of this module.
extern "C" IMAGE_DOS_HEADER __ImageBase;

namespace vellora::win32 {

HINSTANCE module_instance() noexcept {
    return reinterpret_cast<HINSTANCE>(&__ImageBase);
}

WindowClass::WindowClass(const wchar_t* name, bool redraw_whole) : name_(name) {
    WNDCLASSEXW window_class{};
    window_class.cbSize = sizeof window_class;
    window_class.style = redraw_whole ? CS_HREDRAW | CS_VREDRAW : 0;
    window_class.lpfnWndProc = &OwnWindow::procedure;
    window_class.hInstance = module_instance();
    window_class.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    window_class.lpszClassName = name;
    RegisterClassExW(&window_class);
}

WindowClass::~WindowClass() {
    UnregisterClassW(name_, module_instance());
}

OwnWindow::~OwnWindow() {
    if (handle_) {
        // Nobody is left to answer what the window says while it ends.
        SetWindowLongPtrW(handle_.get(), GWLP_USERDATA, 0);
    }
}

void OwnWindow::create(const WindowClass& window_class, DWORD style, DWORD extended_style, HWND parent) {
    const HWND window = CreateWindowExW(extended_style, window_class.name(), L"", style, 0, 0, 0, 0, parent,
                                        nullptr, module_instance(), nullptr);
    if (window == nullptr) {
        throw std::bad_alloc();
    }
    handle_.reset(window);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

LRESULT OwnWindow::end(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    static_cast<void>(handle_.release());
    return on_message(window, message, wparam, lparam);
}

LRESULT CALLBACK OwnWindow::procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept {
    try {
        auto* const self = reinterpret_cast<OwnWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
        if (self == nullptr) {
            return DefWindowProcW(window, message, wparam, lparam);
        }
        return message == WM_NCDESTROY ? self->end(window, message, wparam, lparam)
                                       : self->on_message(window, message, wparam, lparam);
    } catch (...) {
        return 0;
    }
}

} // namespace vellora::win32
