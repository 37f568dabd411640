// The mouse and key arguments of the host's events, read from window messages.
#pragma once

#include <windows.h>

#include <cstdint>

namespace vellora::win32 {

/// 1 Shift, 2 Ctrl, 4 Alt, as the keys stand at the message being handled.
std::int16_t shift_mask();

struct MouseArguments {
    std::int16_t button = 0; // 1 left, 2 right, 4 middle; a mask of those held for a move
    std::int16_t shift = 0;
    float x = 0; // twips in the window's client area
    float y = 0;
};

/// For WM_xBUTTONDOWN, WM_xBUTTONUP and WM_MOUSEMOVE.
MouseArguments mouse_arguments(UINT message, WPARAM wparam, LPARAM lparam);

bool is_button_down(UINT message);
bool is_button_up(UINT message);
/// The button a press or release is about, 0 for other messages.
std::int16_t button_of(UINT message);
POINT point_of(LPARAM lparam);

/// A window that takes the mouse. Points are pixels in its client area.
class MouseReceiver {
public:
    virtual void mouse_moved(POINT point) = 0;
    virtual void mouse_pressed(std::int16_t button, POINT point) = 0;
    virtual void mouse_released(std::int16_t button, POINT point) = 0;

protected:
    ~MouseReceiver() = default;
};

/// Hands a move, a press or a release to its receiver, which may end by it. False for any other message.
bool receive_mouse(MouseReceiver& receiver, UINT message, LPARAM lparam);

/// Whether the user did what a mouse message of this window is about before `tick`, by GetTickCount, or in
/// that very tick. A message that did not come from the mouse is never old.
bool is_mouse_older_than(DWORD tick, HWND window, POINT point);

} // namespace vellora::win32
