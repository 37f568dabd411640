// The platform's own list view in report style, in owner-data mode: it holds no rows and asks for what it
// paints. Its procedure is replaced when it is created, by one that is the same for all lists.
#pragma once

#include <windows.h>

#include <commctrl.h>

namespace vellora::win32 {

struct WindowMessage {
    UINT id = 0;
    WPARAM wparam = 0;
    LPARAM lparam = 0;
};

/// Gets every message of the list before the platform's procedure, and its result counts. It may end the list
/// while it works.
class ListWindowClient {
public:
    virtual LRESULT list_message(WindowMessage message) = 0;

protected:
    ~ListWindowClient() = default;
};

/// The window may be destroyed with its parent before this object ends; then the handle is null and every
/// message answered with 0.
class ListWindow {
public:
    /// Created hidden. Throws std::bad_alloc when the window cannot be made.
    explicit ListWindow(HWND parent);
    ~ListWindow();
    ListWindow(const ListWindow&) = delete;
    ListWindow& operator=(const ListWindow&) = delete;

    HWND handle() const noexcept { return handle_; }
    /// Without a client, as at first, messages go straight to the platform's procedure.
    void serve(ListWindowClient* client) noexcept { client_ = client; }

    /// Calls the platform's own procedure, past everything that stands on top of it.
    LRESULT native(UINT message, WPARAM wparam = 0, LPARAM lparam = 0) const noexcept;
    template <typename Structure>
    LRESULT native(UINT message, WPARAM wparam, Structure* structure) const noexcept {
        return native(message, wparam, reinterpret_cast<LPARAM>(structure));
    }
    LRESULT native(const WindowMessage& message) const noexcept {
        return native(message.id, message.wparam, message.lparam);
    }

    bool has_style(DWORD bits) const noexcept;
    void set_style(DWORD bits, bool on) noexcept;
    bool has_extended_style(DWORD bits) const noexcept;
    void set_extended_style(DWORD bits, bool on) noexcept;

    HWND header() const noexcept;
    /// The pixels in which columns and rows stand.
    RECT client_area() const noexcept;

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept;
    void replace_procedure() noexcept;
    LRESULT last_message(const WindowMessage& message) noexcept;

    HWND handle_ = nullptr;
    WNDPROC platform_procedure_ = nullptr;
    ListWindowClient* client_ = nullptr;
};

} // namespace vellora::win32
