#include "server/accessible_window.h"

#include "com/bstr.h"
#include "com/guard.h"

#include <iterator>

namespace vellora::server {

namespace {

// One & marks the access key, two stand for one.
std::u16string without_access_key(std::u16string_view caption) {
    std::u16string name;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        i += caption[i] == u'&' ? 1 : 0;
        name.append(caption.substr(i, 1));
    }
    return name;
}

// A label stands before what it names.
std::u16string label_before(HWND window) {
    const HWND label = GetWindow(window, GW_HWNDPREV);
    wchar_t kind[8];
    if (label == nullptr || !IsWindowVisible(label) || GetClassNameW(label, kind, std::size(kind)) == 0 ||
        lstrcmpiW(kind, L"Static") != 0) {
        return {};
    }
    wchar_t caption[256];
    const int length = GetWindowTextW(label, caption, std::size(caption));
    const std::u16string_view whole = com::narrow_view({caption, static_cast<std::size_t>(length)});
    const bool marks_key = (GetWindowLongPtrW(label, GWL_STYLE) & SS_NOPREFIX) == 0;
    return marks_key ? without_access_key(whole) : std::u16string(whole);
}

} // namespace

bool is_self(const VARIANT& child) noexcept { return child.vt == VT_I4 && child.lVal == CHILDID_SELF; }

AccessibleWindow::AccessibleWindow(HWND window, const AccessibleControl& control) : control_(control) {
    com::check(CreateStdAccessibleObject(window, OBJID_CLIENT, IID_IAccessible,
                                         reinterpret_cast<void**>(platform_.GetAddressOf())));
    com::check(platform_.As(&children_));
    com::check(platform_.As(&window_));
}

Accessibility& AccessibleWindow::behaviour() const {
    if (!control_.alive.alive()) {
        throw com::ComFailure(CO_E_OBJNOTCONNECTED);
    }
    return *control_.behaviour;
}

STDMETHODIMP AccessibleWindow::QueryInterface(REFIID id, void** out) noexcept {
    if (out == nullptr) {
        return E_POINTER;
    }
    if (id == IID_IUnknown || id == IID_IDispatch || id == IID_IAccessible) {
        *out = static_cast<IAccessible*>(this);
    } else if (id == IID_IEnumVARIANT) {
        *out = static_cast<IEnumVARIANT*>(this);
    } else if (id == IID_IOleWindow) {
        *out = static_cast<IOleWindow*>(this);
    } else {
        *out = nullptr;
        return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
}

STDMETHODIMP_(ULONG) AccessibleWindow::Release() noexcept {
    const ULONG left = --references_;
    if (left == 0) {
        delete this;
    }
    return left;
}

STDMETHODIMP AccessibleWindow::get_accName(VARIANT child, BSTR* name) noexcept {
    if (!is_self(child)) {
        return platform_->get_accName(child, name);
    }
    return com::guard([&] {
        com::need(name);
        *name = nullptr;
        behaviour();
        const std::u16string label = label_before(control_.surface);
        *name = com::make_bstr(label.empty() ? behaviour().name() : label);
    });
}

// ---- Everything else is as the platform has it ------------------------------------------------------------------

STDMETHODIMP AccessibleWindow::GetTypeInfoCount(UINT* count) noexcept { return platform_->GetTypeInfoCount(count); }

STDMETHODIMP AccessibleWindow::GetTypeInfo(UINT index, LCID locale, ITypeInfo** type) noexcept {
    return platform_->GetTypeInfo(index, locale, type);
}

STDMETHODIMP AccessibleWindow::GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID locale,
                                             DISPID* ids) noexcept {
    return platform_->GetIDsOfNames(id, names, count, locale, ids);
}

// By way of the interface's own description, so that a script reaches the members above too.
STDMETHODIMP AccessibleWindow::Invoke(DISPID member, REFIID id, LCID locale, WORD flags, DISPPARAMS* arguments,
                                      VARIANT* result, EXCEPINFO* exception, UINT* argument) noexcept {
    if (id != IID_NULL) {
        return DISP_E_UNKNOWNINTERFACE;
    }
    com::ComPtr<ITypeInfo> type;
    const HRESULT found = platform_->GetTypeInfo(0, locale, type.GetAddressOf());
    return FAILED(found) ? found
                         : type->Invoke(static_cast<IAccessible*>(this), member, flags, arguments, result, exception,
                                        argument);
}

STDMETHODIMP AccessibleWindow::get_accParent(IDispatch** parent) noexcept { return platform_->get_accParent(parent); }

STDMETHODIMP AccessibleWindow::get_accChildCount(long* count) noexcept { return platform_->get_accChildCount(count); }

STDMETHODIMP AccessibleWindow::get_accChild(VARIANT child, IDispatch** out) noexcept {
    return platform_->get_accChild(child, out);
}

STDMETHODIMP AccessibleWindow::get_accValue(VARIANT child, BSTR* value) noexcept {
    return platform_->get_accValue(child, value);
}

STDMETHODIMP AccessibleWindow::get_accDescription(VARIANT child, BSTR* text) noexcept {
    return platform_->get_accDescription(child, text);
}

STDMETHODIMP AccessibleWindow::get_accRole(VARIANT child, VARIANT* role) noexcept {
    return platform_->get_accRole(child, role);
}

STDMETHODIMP AccessibleWindow::get_accState(VARIANT child, VARIANT* state) noexcept {
    return platform_->get_accState(child, state);
}

STDMETHODIMP AccessibleWindow::get_accHelp(VARIANT child, BSTR* text) noexcept {
    return platform_->get_accHelp(child, text);
}

STDMETHODIMP AccessibleWindow::get_accHelpTopic(BSTR* file, VARIANT child, long* topic) noexcept {
    return platform_->get_accHelpTopic(file, child, topic);
}

STDMETHODIMP AccessibleWindow::get_accKeyboardShortcut(VARIANT child, BSTR* text) noexcept {
    return platform_->get_accKeyboardShortcut(child, text);
}

STDMETHODIMP AccessibleWindow::get_accFocus(VARIANT* child) noexcept { return platform_->get_accFocus(child); }

STDMETHODIMP AccessibleWindow::get_accSelection(VARIANT* children) noexcept {
    return platform_->get_accSelection(children);
}

STDMETHODIMP AccessibleWindow::get_accDefaultAction(VARIANT child, BSTR* action) noexcept {
    return platform_->get_accDefaultAction(child, action);
}

STDMETHODIMP AccessibleWindow::accSelect(long flags, VARIANT child) noexcept {
    return platform_->accSelect(flags, child);
}

STDMETHODIMP AccessibleWindow::accLocation(long* left, long* top, long* width, long* height, VARIANT child) noexcept {
    return platform_->accLocation(left, top, width, height, child);
}

STDMETHODIMP AccessibleWindow::accNavigate(long direction, VARIANT start, VARIANT* end) noexcept {
    return platform_->accNavigate(direction, start, end);
}

STDMETHODIMP AccessibleWindow::accHitTest(long left, long top, VARIANT* child) noexcept {
    return platform_->accHitTest(left, top, child);
}

STDMETHODIMP AccessibleWindow::accDoDefaultAction(VARIANT child) noexcept {
    return platform_->accDoDefaultAction(child);
}

STDMETHODIMP AccessibleWindow::put_accName(VARIANT child, BSTR name) noexcept {
    return platform_->put_accName(child, name);
}

STDMETHODIMP AccessibleWindow::put_accValue(VARIANT child, BSTR value) noexcept {
    return platform_->put_accValue(child, value);
}

STDMETHODIMP AccessibleWindow::Next(ULONG count, VARIANT* children, ULONG* fetched) noexcept {
    return children_->Next(count, children, fetched);
}

STDMETHODIMP AccessibleWindow::Skip(ULONG count) noexcept { return children_->Skip(count); }

STDMETHODIMP AccessibleWindow::Reset() noexcept { return children_->Reset(); }

STDMETHODIMP AccessibleWindow::Clone(IEnumVARIANT** copy) noexcept { return children_->Clone(copy); }

STDMETHODIMP AccessibleWindow::GetWindow(HWND* window) noexcept { return window_->GetWindow(window); }

STDMETHODIMP AccessibleWindow::ContextSensitiveHelp(BOOL enter) noexcept {
    return window_->ContextSensitiveHelp(enter);
}

} // namespace vellora::server
