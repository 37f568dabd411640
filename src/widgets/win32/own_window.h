// Windows of the library's own classes: a class belongs to this module and goes with it, a window belongs to
// one object, which gets its messages.
#pragma once

#include "widgets/win32/handles.h"

namespace vellora::win32 {

/// The module this code stands in, be it the library or a program that links it in.
HINSTANCE module_instance() noexcept;

/// Registered as long as it stands. `redraw_whole` invalidates the whole window whenever its size changes.
class WindowClass {
public:
    WindowClass(const wchar_t* name, bool redraw_whole);
    ~WindowClass();
    WindowClass(const WindowClass&) = delete;
    WindowClass& operator=(const WindowClass&) = delete;
    const wchar_t* name() const { return name_; }

private:
    const wchar_t* name_;
};

class OwnWindow {
public:
    virtual ~OwnWindow();
    OwnWindow(const OwnWindow&) = delete;
    OwnWindow& operator=(const OwnWindow&) = delete;

    /// Null once the window is destroyed, which its parent's end may bring about.
    HWND handle() const { return handle_.get(); }

protected:
    OwnWindow() = default;

    /// Throws std::bad_alloc when the window cannot be made. Messages arrive from now on.
    void create(const WindowClass& window_class, DWORD style, DWORD extended_style, HWND parent);
    /// May destroy the object. Unanswered messages go to DefWindowProcW.
    virtual LRESULT on_message(HWND window, UINT message, WPARAM wparam, LPARAM lparam) = 0;

private:
    friend class WindowClass;
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept;
    LRESULT end(HWND window, UINT message, WPARAM wparam, LPARAM lparam);

    UniqueWindow handle_;
};

} // namespace vellora::win32
