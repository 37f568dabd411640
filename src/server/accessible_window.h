// What assistive software gets for one of the control's windows: what the platform tells of any such window, and the
// name of the control.
#pragma once

#include "com/live_object.h"
#include "com/ole.h"
#include "control/accessibility.h"
#include "widgets/win32/lifeline.h"

#include <oleacc.h>

#include <atomic>

namespace vellora::server {

/// What still answers when the control is gone: everything fails then.
struct AccessibleControl {
    Accessibility* behaviour = nullptr;
    win32::Lifeline::Watch alive;
    HWND surface = nullptr;
};

class AccessibleWindow : public IAccessible, public IEnumVARIANT, public IOleWindow {
public:
    /// Throws com::ComFailure when the platform tells nothing of the window.
    AccessibleWindow(HWND window, const AccessibleControl& control);
    AccessibleWindow(const AccessibleWindow&) = delete;
    AccessibleWindow& operator=(const AccessibleWindow&) = delete;

    STDMETHODIMP QueryInterface(REFIID id, void** out) noexcept override;
    STDMETHODIMP_(ULONG) AddRef() noexcept override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() noexcept override;

    STDMETHODIMP GetTypeInfoCount(UINT* count) noexcept override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** type) noexcept override;
    STDMETHODIMP GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) noexcept override;
    STDMETHODIMP Invoke(DISPID member, REFIID id, LCID locale, WORD flags, DISPPARAMS* arguments, VARIANT* result,
                        EXCEPINFO* exception, UINT* argument) noexcept override;

    STDMETHODIMP get_accParent(IDispatch** parent) noexcept override;
    STDMETHODIMP get_accChildCount(long* count) noexcept override;
    STDMETHODIMP get_accChild(VARIANT child, IDispatch** out) noexcept override;
    STDMETHODIMP get_accName(VARIANT child, BSTR* name) noexcept override;
    STDMETHODIMP get_accValue(VARIANT child, BSTR* value) noexcept override;
    STDMETHODIMP get_accDescription(VARIANT child, BSTR* text) noexcept override;
    STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) noexcept override;
    STDMETHODIMP get_accState(VARIANT child, VARIANT* state) noexcept override;
    STDMETHODIMP get_accHelp(VARIANT child, BSTR* text) noexcept override;
    STDMETHODIMP get_accHelpTopic(BSTR* file, VARIANT child, long* topic) noexcept override;
    STDMETHODIMP get_accKeyboardShortcut(VARIANT child, BSTR* text) noexcept override;
    STDMETHODIMP get_accFocus(VARIANT* child) noexcept override;
    STDMETHODIMP get_accSelection(VARIANT* children) noexcept override;
    STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) noexcept override;
    STDMETHODIMP accSelect(long flags, VARIANT child) noexcept override;
    STDMETHODIMP accLocation(long* left, long* top, long* width, long* height, VARIANT child) noexcept override;
    STDMETHODIMP accNavigate(long direction, VARIANT start, VARIANT* end) noexcept override;
    STDMETHODIMP accHitTest(long left, long top, VARIANT* child) noexcept override;
    STDMETHODIMP accDoDefaultAction(VARIANT child) noexcept override;
    STDMETHODIMP put_accName(VARIANT child, BSTR name) noexcept override;
    STDMETHODIMP put_accValue(VARIANT child, BSTR value) noexcept override;

    /// The children, which the platform's AccessibleChildren asks for in this way.
    STDMETHODIMP Next(ULONG count, VARIANT* children, ULONG* fetched) noexcept override;
    STDMETHODIMP Skip(ULONG count) noexcept override;
    STDMETHODIMP Reset() noexcept override;
    STDMETHODIMP Clone(IEnumVARIANT** copy) noexcept override;

    STDMETHODIMP GetWindow(HWND* window) noexcept override;
    STDMETHODIMP ContextSensitiveHelp(BOOL enter) noexcept override;

protected:
    virtual ~AccessibleWindow() = default;

    IAccessible& platform() const { return *platform_.Get(); }
    /// Throws com::ComFailure (CO_E_OBJNOTCONNECTED) when the control is gone.
    Accessibility& behaviour() const;

private:
    com::LiveObject live_;
    std::atomic<ULONG> references_{1};
    AccessibleControl control_;
    com::ComPtr<IAccessible> platform_;
    com::ComPtr<IEnumVARIANT> children_;
    com::ComPtr<IOleWindow> window_;
};

/// Whether a request is about the object itself rather than one of its parts.
bool is_self(const VARIANT& child) noexcept;

} // namespace vellora::server
