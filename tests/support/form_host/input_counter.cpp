#include "support/form_host/input_counter.h"

namespace vellora::test {
namespace {

InputCounter::Counts totals;

long* counter_for(UINT message) {
    switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDOWN:
    case WM_NCLBUTTONDOWN:
        return &totals.button_down;
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
    case WM_NCLBUTTONUP:
        return &totals.button_up;
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
        return &totals.key_down;
    case WM_KEYUP:
    case WM_SYSKEYUP:
        return &totals.key_up;
    case WM_MOUSEWHEEL:
        return &totals.wheel;
    default:
        return nullptr;
    }
}

} // namespace

InputCounter::InputCounter() : hook_(SetWindowsHookExW(WH_GETMESSAGE, see, nullptr, GetCurrentThreadId())) {}

InputCounter::~InputCounter() {
    UnhookWindowsHookEx(hook_);
}

const InputCounter::Counts& InputCounter::counts() noexcept {
    return totals;
}

LRESULT CALLBACK InputCounter::see(int code, WPARAM removed, LPARAM message) noexcept {
    if (code == HC_ACTION && removed == PM_REMOVE)
        if (long* counter = counter_for(reinterpret_cast<const MSG*>(message)->message))
            ++*counter;
    return CallNextHookEx(nullptr, code, removed, message);
}

} // namespace vellora::test
