// Owners for the handles of the window system: each gives its handle back exactly once.
#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

namespace vellora::win32 {

struct WindowDeleter {
    using pointer = HWND;
    void operator()(HWND window) const noexcept { DestroyWindow(window); }
};
using UniqueWindow = std::unique_ptr<std::remove_pointer_t<HWND>, WindowDeleter>;

template <class Handle>
struct GdiDeleter {
    using pointer = Handle;
    void operator()(Handle object) const noexcept { DeleteObject(object); }
};
using UniqueBrush = std::unique_ptr<std::remove_pointer_t<HBRUSH>, GdiDeleter<HBRUSH>>;
using UniquePen = std::unique_ptr<std::remove_pointer_t<HPEN>, GdiDeleter<HPEN>>;
using UniqueGdiFont = std::unique_ptr<std::remove_pointer_t<HFONT>, GdiDeleter<HFONT>>;
using UniqueBitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, GdiDeleter<HBITMAP>>;

struct MemoryDcDeleter {
    using pointer = HDC;
    void operator()(HDC dc) const noexcept { DeleteDC(dc); }
};
using UniqueMemoryDc = std::unique_ptr<std::remove_pointer_t<HDC>, MemoryDcDeleter>;

/// The device context of a window, or of the screen for a null window.
class WindowDc {
public:
    explicit WindowDc(HWND window) : WindowDc(window, GetDC(window)) {}
    /// Of a window together with its border.
    static WindowDc whole(HWND window) { return {window, GetWindowDC(window)}; }
    ~WindowDc() { ReleaseDC(window_, dc_); }
    WindowDc(const WindowDc&) = delete;
    WindowDc& operator=(const WindowDc&) = delete;
    HDC get() const { return dc_; }

private:
    WindowDc(HWND window, HDC dc) : window_(window), dc_(dc) {}

    HWND window_;
    HDC dc_;
};

/// Everything selected or set while this stands is undone at its end.
class SavedDc {
public:
    explicit SavedDc(HDC dc) : dc_(dc), state_(SaveDC(dc)) {}
    ~SavedDc() { RestoreDC(dc_, state_); }
    SavedDc(const SavedDc&) = delete;
    SavedDc& operator=(const SavedDc&) = delete;

private:
    HDC dc_;
    int state_;
};

} // namespace vellora::win32
