#include "controls.h"

#include <utility>

namespace vellora::samples {

using Microsoft::WRL::ComPtr;

Controls::Controls(HWND window, HWND mdi_frame)
    : focus_(window), surroundings_{window, ComPtr<FormFrame>(new FormFrame(window)), font_.object(), mdi_frame, true} {
}

ControlSite& Controls::add(IUnknown* control, const std::wstring& name, const RECT& place, IPropertyBag* saved) {
    ControlSite& site = reserve(name, place);
    site.take(control, saved);
    return site;
}

ControlSite& Controls::reserve(const std::wstring& name, const RECT& place) {
    sites_.emplace_back(new ControlSite(surroundings_, name));
    sites_.back()->move(place);
    return *sites_.back().Get();
}

void Controls::remove(ControlSite& site) {
    site.release();
    std::erase_if(sites_, [&](const ComPtr<ControlSite>& one) { return one.Get() == &site; });
}

void Controls::release() {
    for (const ComPtr<ControlSite>& site : std::exchange(sites_, {}))
        site->release();
}

bool Controls::takes(MSG& message) const {
    const HWND window = surroundings_.form;
    // Messages for other windows, say an open list, are not the dialog manager's.
    const bool ours = message.hwnd == window || IsChild(window, message.hwnd);
    return surroundings_.frame->takes(message) || (ours && IsDialogMessageW(window, &message));
}

void Controls::window_heard(UINT message, WPARAM wparam) {
    const bool active = LOWORD(wparam) != WA_INACTIVE;
    switch (message) {
    case WM_ACTIVATE:
        focus_.form_activated(active);
        surroundings_.frame->form_activated(active);
        break;
    case WM_SETFOCUS:
        focus_.give_back();
        break;
    case WM_DESTROY:
        release();
        break;
    }
}

} // namespace vellora::samples
