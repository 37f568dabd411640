// The control as assistive software sees it: a combo box with a name, a value, and a list that opens and closes. The
// rows of the open list are told by the platform's own list, which asks the store behind it.
#pragma once

#include "server/accessible_window.h"

namespace vellora::server {

class AccessibleCombo final : public AccessibleWindow {
public:
    using AccessibleWindow::AccessibleWindow;

    STDMETHODIMP get_accValue(VARIANT child, BSTR* value) noexcept override;
    STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) noexcept override;
    STDMETHODIMP get_accState(VARIANT child, VARIANT* state) noexcept override;
    /// "Open" or "Close", as combo boxes of the platform say.
    STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) noexcept override;
    STDMETHODIMP accDoDefaultAction(VARIANT child) noexcept override;
    STDMETHODIMP put_accValue(VARIANT child, BSTR value) noexcept override;
};

/// The answer to WM_GETOBJECT for the control's own window or its text box; zero where the platform's own serves.
LRESULT accessible_object(HWND window, WPARAM wparam, LPARAM lparam, const AccessibleControl& control);

} // namespace vellora::server
