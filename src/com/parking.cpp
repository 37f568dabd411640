#include "com/parking.h"

#include "com/guard.h"

namespace vellora::com {

namespace {

struct ParkingWindow {
    HWND window = nullptr;
    int shares = 0;
};
thread_local ParkingWindow parking;

HWND create_parking_window() {
    // A class of the system's needs no registration that would have to be undone when the library goes.
    const HWND window = CreateWindowExW(WS_EX_TOOLWINDOW, L"Static", nullptr, WS_POPUP, 0, 0, 0, 0, nullptr,
                                        nullptr, GetModuleHandleW(nullptr), nullptr);
    if (!window)
        throw ComFailure(E_FAIL);
    return window;
}

} // namespace

Parking::Parking() {
    if (!parking.window)
        parking.window = create_parking_window();
    ++parking.shares;
}

Parking::~Parking() {
    if (--parking.shares > 0)
        return;
    DestroyWindow(parking.window);
    parking = {};
}

HWND Parking::window() const noexcept {
    return parking.window;
}

void Parking::park(HWND control) const noexcept {
    if (!IsWindow(control))
        return;
    ShowWindow(control, SW_HIDE);
    // Not every platform takes the focus from the children of a window that is hidden.
    if (IsChild(control, GetFocus()))
        SetFocus(GetParent(control));
    SetParent(control, parking.window);
}

} // namespace vellora::com
