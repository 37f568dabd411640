// Notifications of a child window go to the window it was created in, wherever it stands by now. Every window
// that may be told of something hands its WM_NOTIFY over here; the sender's receiver then answers it.
#pragma once

#include <windows.h>

#include <optional>

namespace vellora::win32 {

class NotificationReceiver {
public:
    virtual LRESULT notified(NMHDR& header) = 0;

protected:
    ~NotificationReceiver() = default;
};

/// From now on notifications sent by `sender` go to `receiver`; null ends that. A sender that is destroyed
/// needs no ending of its own.
void receive_notifications(HWND sender, NotificationReceiver* receiver) noexcept;

/// Hands the WM_NOTIFY with this lParam on. Nothing when its sender has no receiver: the caller then treats
/// the message as any other.
std::optional<LRESULT> route_notification(LPARAM lparam) noexcept;

} // namespace vellora::win32
