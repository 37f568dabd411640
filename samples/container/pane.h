// A window of the container's own: it lives as long as its object, and no exception leaves it.
#pragma once

#include <windows.h>

namespace vellora::samples {

/// A window sends it to the one at the top when something went wrong: lparam is the sentence, a std::wstring.
constexpr UINT problem_message = WM_APP + 1;

class Pane {
public:
    Pane(const Pane&) = delete;
    Pane& operator=(const Pane&) = delete;
    virtual ~Pane();

    /// Null once the system has destroyed it.
    HWND window() const noexcept { return window_; }
    /// The window's inside in pixels.
    RECT inside() const;
    bool contains(HWND other) const noexcept { return window_ && (other == window_ || IsChild(window_, other)); }

protected:
    /// Throws a Failure when the window cannot be made.
    Pane(HWND parent, DWORD style, DWORD extended = 0, HMENU menu = nullptr);
    virtual LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam);

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept;

    HWND window_ = nullptr;
};

} // namespace vellora::samples
