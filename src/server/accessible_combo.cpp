#include "server/accessible_combo.h"

#include "com/bstr.h"
#include "com/guard.h"

namespace vellora::server {

namespace {

void set_number(VARIANT* out, long number) noexcept {
    out->vt = VT_I4;
    out->lVal = number;
}

HRESULT done(bool allowed) noexcept { return allowed ? S_OK : E_ACCESSDENIED; }

} // namespace

STDMETHODIMP AccessibleCombo::get_accValue(VARIANT child, BSTR* value) noexcept {
    if (!is_self(child)) {
        return AccessibleWindow::get_accValue(child, value);
    }
    return com::guard([&] {
        com::need(value);
        *value = nullptr;
        *value = com::make_bstr(behaviour().value());
    });
}

STDMETHODIMP AccessibleCombo::get_accRole(VARIANT child, VARIANT* role) noexcept {
    if (!is_self(child)) {
        return AccessibleWindow::get_accRole(child, role);
    }
    return com::guard([&] {
        com::need(role);
        set_number(role, ROLE_SYSTEM_COMBOBOX);
    });
}

STDMETHODIMP AccessibleCombo::get_accState(VARIANT child, VARIANT* state) noexcept {
    if (state == nullptr) {
        return E_POINTER;
    }
    const HRESULT known = AccessibleWindow::get_accState(child, state);
    if (FAILED(known) || !is_self(child) || state->vt != VT_I4) {
        return known;
    }
    return com::guard([&] {
        state->lVal |= STATE_SYSTEM_HASPOPUP;
        state->lVal |= behaviour().expanded() ? STATE_SYSTEM_EXPANDED : STATE_SYSTEM_COLLAPSED;
    });
}

STDMETHODIMP AccessibleCombo::get_accDefaultAction(VARIANT child, BSTR* action) noexcept {
    if (!is_self(child)) {
        return AccessibleWindow::get_accDefaultAction(child, action);
    }
    return com::guard([&] {
        com::need(action);
        *action = nullptr;
        *action = com::make_bstr(behaviour().expanded() ? u"Close" : u"Open");
    });
}

STDMETHODIMP AccessibleCombo::accDoDefaultAction(VARIANT child) noexcept {
    if (!is_self(child)) {
        return AccessibleWindow::accDoDefaultAction(child);
    }
    return com::guard([&] { return done(behaviour().press_button()); });
}

STDMETHODIMP AccessibleCombo::put_accValue(VARIANT child, BSTR value) noexcept {
    if (!is_self(child)) {
        return AccessibleWindow::put_accValue(child, value);
    }
    return com::guard([&] { return done(behaviour().write(com::bstr_view(value))); });
}

LRESULT accessible_object(HWND window, WPARAM wparam, LPARAM lparam, const AccessibleControl& control) {
    // The object identifier has 32 bits on every platform.
    if (static_cast<LONG>(lparam) != OBJID_CLIENT) {
        return 0;
    }
    com::ComPtr<IAccessible> object;
    if (window == control.surface) {
        *object.GetAddressOf() = new AccessibleCombo(window, control);
    } else {
        *object.GetAddressOf() = new AccessibleWindow(window, control);
    }
    return LresultFromObject(IID_IAccessible, wparam, object.Get());
}

} // namespace vellora::server
