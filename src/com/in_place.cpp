#include "com/in_place.h"

#include "com/control_host.h"

namespace vellora::com {

namespace {

void give_window(ControlHost& host, HWND* window) {
    need(window);
    *window = nullptr;
    *window = host.client().window();
}

bool is_key_press(const MSG& message) {
    return message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
}

DWORD key_modifiers() {
    constexpr DWORD shift = 1, control = 2, alt = 4; // as the site numbers them
    const auto down = [](int key, DWORD bit) { return GetKeyState(key) < 0 ? bit : 0; };
    return down(VK_SHIFT, shift) | down(VK_CONTROL, control) | down(VK_MENU, alt);
}

} // namespace

InPlaceObject::InPlaceObject(ControlHost& host) : Delegating(host.controlling()), host_(host) {}

STDMETHODIMP InPlaceObject::GetWindow(HWND* window) noexcept {
    return guard([&] { give_window(host_, window); });
}

STDMETHODIMP InPlaceObject::ContextSensitiveHelp(BOOL) noexcept {
    return E_NOTIMPL;
}

STDMETHODIMP InPlaceObject::InPlaceDeactivate() noexcept {
    const Hold alive = host_.hold();
    return guard([&] { host_.activation().deactivate(); });
}

STDMETHODIMP InPlaceObject::UIDeactivate() noexcept {
    const Hold alive = host_.hold();
    return guard([&] { host_.activation().deactivate_ui(); });
}

STDMETHODIMP InPlaceObject::SetObjectRects(LPCRECT position, LPCRECT clip) noexcept {
    const Hold alive = host_.hold();
    return guard([&] {
        need(position);
        host_.activation().set_rects(*position, clip ? *clip : *position);
    });
}

STDMETHODIMP InPlaceObject::ReactivateAndUndo() noexcept {
    return INPLACE_E_NOTUNDOABLE;
}

InPlaceActiveObject::InPlaceActiveObject(ControlHost& host) : Delegating(host.controlling()), host_(host) {}

STDMETHODIMP InPlaceActiveObject::GetWindow(HWND* window) noexcept {
    return guard([&] { give_window(host_, window); });
}

STDMETHODIMP InPlaceActiveObject::ContextSensitiveHelp(BOOL) noexcept {
    return E_NOTIMPL;
}

STDMETHODIMP InPlaceActiveObject::TranslateAccelerator(LPMSG message) noexcept {
    const Hold alive = host_.hold();
    return guard([&] {
        need(message);
        switch (host_.client().translate_key(*message)) {
        case KeyRoute::consumed:
            return S_OK;
        case KeyRoute::child:
            // Past the container, which would move the focus with arrow keys.
            TranslateMessage(message);
            DispatchMessageW(message);
            return S_OK;
        default:
            return offer_to_container(*message);
        }
    });
}

HRESULT InPlaceActiveObject::offer_to_container(MSG& message) {
    const ComPtr<IOleControlSite> site = host_.site().control_site();
    if (!site || !is_key_press(message))
        return S_FALSE;
    return site->TranslateAccelerator(&message, key_modifiers()) == S_OK ? S_OK : S_FALSE;
}

STDMETHODIMP InPlaceActiveObject::OnFrameWindowActivate(BOOL) noexcept {
    return S_OK;
}

STDMETHODIMP InPlaceActiveObject::OnDocWindowActivate(BOOL) noexcept {
    return S_OK;
}

STDMETHODIMP InPlaceActiveObject::ResizeBorder(LPCRECT, IOleInPlaceUIWindow*, BOOL) noexcept {
    return S_OK;
}

STDMETHODIMP InPlaceActiveObject::EnableModeless(BOOL) noexcept {
    return S_OK;
}

} // namespace vellora::com
