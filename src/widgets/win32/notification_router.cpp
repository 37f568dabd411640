#include "widgets/win32/notification_router.h"

namespace vellora::win32 {

namespace {

constexpr wchar_t receiver_property[] = L"VelloraNotificationReceiver";

// A window of another thread may carry the same property with a pointer that is not ours to call.
NotificationReceiver* receiver_of(HWND sender) noexcept {
    if (!sender || GetWindowThreadProcessId(sender, nullptr) != GetCurrentThreadId())
        return nullptr;
    return static_cast<NotificationReceiver*>(GetPropW(sender, receiver_property));
}

} // namespace

void receive_notifications(HWND sender, NotificationReceiver* receiver) noexcept {
    if (receiver)
        SetPropW(sender, receiver_property, receiver);
    else
        RemovePropW(sender, receiver_property);
}

std::optional<LRESULT> route_notification(LPARAM lparam) noexcept try {
    if (!lparam)
        return std::nullopt;
    auto& header = *reinterpret_cast<NMHDR*>(lparam);
    NotificationReceiver* const receiver = receiver_of(header.hwndFrom);
    if (!receiver)
        return std::nullopt;
    return receiver->notified(header);
} catch (...) {
    return LRESULT{0};
}

} // namespace vellora::win32
