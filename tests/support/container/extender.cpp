#include "support/container/extender.h"

#include "support/container/form.h"
#include "support/container/named_dispatch.h"

#include <oleidl.h>

namespace vellora::test {

using Microsoft::WRL::ComPtr;

namespace {

float twips(LONG pixels, LONG factor) {
    return static_cast<float>(pixels * factor);
}
LONG pixels(const Variant& twips_value, LONG factor) {
    return twips_value.number() / factor;
}

// The control is told of its new place as a host does it when the program assigns a length.
void move_control(SiteState& state) {
    ComPtr<IOleInPlaceObject> in_place;
    if (state.control && SUCCEEDED(state.control.As(&in_place)))
        in_place->SetObjectRects(&state.place, &state.place);
}

ComPtr<IDispatch> make_parent(SiteState& state) {
    ComPtr<NamedDispatch> parent(new NamedDispatch);
    parent->report_to(state.log, "Form");
    const ComPtr<IUnknown> site(state.identity);
    parent->property(L"hWnd", [site, &state] {
        const auto window = reinterpret_cast<LONG_PTR>(state.form ? state.form->window() : nullptr);
        return Variant(static_cast<long>(window));
    });
    parent->property(L"MDIChild",
                     [site, &state] { return Variant(state.form && state.form->is_mdi_child()); });
    return parent;
}

void add_lengths(NamedDispatch& extender, const ComPtr<IUnknown>& site, SiteState& state) {
    const SIZE factor = twips_per_pixel();
    RECT& place = state.place;
    extender.property(
        L"Left", [site, &place, factor] { return Variant(twips(place.left, factor.cx)); },
        [site, &state, factor](const Variant& value) {
            OffsetRect(&state.place, pixels(value, factor.cx) - state.place.left, 0);
            move_control(state);
        });
    extender.property(
        L"Top", [site, &place, factor] { return Variant(twips(place.top, factor.cy)); },
        [site, &state, factor](const Variant& value) {
            OffsetRect(&state.place, 0, pixels(value, factor.cy) - state.place.top);
            move_control(state);
        });
    extender.property(
        L"Width", [site, &place, factor] { return Variant(twips(place.right - place.left, factor.cx)); },
        [site, &state, factor](const Variant& value) {
            state.place.right = state.place.left + pixels(value, factor.cx);
            move_control(state);
        });
    extender.property(
        L"Height", [site, &place, factor] { return Variant(twips(place.bottom - place.top, factor.cy)); },
        [site, &state, factor](const Variant& value) {
            state.place.bottom = state.place.top + pixels(value, factor.cy);
            move_control(state);
        });
}

} // namespace

SIZE twips_per_pixel() {
    HDC screen = GetDC(nullptr);
    const SIZE result{1440 / GetDeviceCaps(screen, LOGPIXELSX), 1440 / GetDeviceCaps(screen, LOGPIXELSY)};
    ReleaseDC(nullptr, screen);
    return result;
}

ComPtr<IDispatch> make_extender(SiteState& state) {
    ComPtr<NamedDispatch> extender(new NamedDispatch);
    extender->report_to(state.log, "Extender");
    const ComPtr<IUnknown> site(state.identity);
    extender->property(L"Name", [site, &state] { return Variant(state.name); });
    add_lengths(*extender.Get(), site, state);
    if (state.extender_has_parent)
        extender->property(L"Parent", [site, &state] { return Variant(make_parent(state).Get()); });
    return extender;
}

} // namespace vellora::test
