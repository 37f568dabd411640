#include "widgets/win32/user_input.h"

#include "widgets/win32/screen_metrics.h"

#include <windowsx.h>

namespace vellora::win32 {

namespace {

constexpr int left_button = 1;
constexpr int right_button = 2;
constexpr int middle_button = 4;

int mask_if(bool condition, int bit) {
    return condition ? bit : 0;
}

std::int16_t held_buttons(WPARAM keys) {
    return static_cast<std::int16_t>(mask_if(keys & MK_LBUTTON, left_button) |
                                     mask_if(keys & MK_RBUTTON, right_button) |
                                     mask_if(keys & MK_MBUTTON, middle_button));
}

} // namespace

std::int16_t shift_mask() {
    return static_cast<std::int16_t>(mask_if(GetKeyState(VK_SHIFT) < 0, 1) |
                                     mask_if(GetKeyState(VK_CONTROL) < 0, 2) |
                                     mask_if(GetKeyState(VK_MENU) < 0, 4));
}

std::int16_t button_of(UINT message) {
    switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
        return left_button;
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
        return right_button;
    case WM_MBUTTONDOWN:
    case WM_MBUTTONUP:
        return middle_button;
    default:
        return 0;
    }
}

bool is_button_down(UINT message) {
    return message == WM_LBUTTONDOWN || message == WM_RBUTTONDOWN || message == WM_MBUTTONDOWN;
}

bool is_button_up(UINT message) {
    return message == WM_LBUTTONUP || message == WM_RBUTTONUP || message == WM_MBUTTONUP;
}

POINT point_of(LPARAM lparam) {
    return {GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)};
}

bool receive_mouse(MouseReceiver& receiver, UINT message, LPARAM lparam) {
    const POINT point = point_of(lparam);
    if (message == WM_MOUSEMOVE) {
        receiver.mouse_moved(point);
    } else if (is_button_down(message)) {
        receiver.mouse_pressed(button_of(message), point);
    } else if (is_button_up(message)) {
        receiver.mouse_released(button_of(message), point);
    } else {
        return false;
    }
    return true;
}

bool is_mouse_older_than(DWORD tick, HWND window, POINT point) {
    ClientToScreen(window, &point);
    const POINT last = point_of(static_cast<LPARAM>(GetMessagePos()));
    const bool is_from_mouse = point.x == last.x && point.y == last.y;
    return is_from_mouse && static_cast<LONG>(static_cast<DWORD>(GetMessageTime()) - tick) <= 0;
}

MouseArguments mouse_arguments(UINT message, WPARAM wparam, LPARAM lparam) {
    const POINT point = point_of(lparam);
    return {message == WM_MOUSEMOVE ? held_buttons(wparam) : button_of(message), shift_mask(),
            twips_x(point.x), twips_y(point.y)};
}

} // namespace vellora::win32
