#include "com/extender.h"

#include "com/bstr.h"
#include "com/control_size.h"
#include "com/object_property.h"

#include <cmath>
#include <cstdint>

namespace vellora::com {

namespace {

bool is_mdi_child(HWND window) {
    return (GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_MDICHILD) != 0;
}

HWND enclosing_form(HWND window) {
    const HWND desktop = GetDesktopWindow();
    while (window && !is_mdi_child(window)) {
        const HWND parent = GetAncestor(window, GA_PARENT);
        if (!parent || parent == desktop)
            break;
        window = parent;
    }
    return window;
}

/// A width of the container's scale in HIMETRIC, where the container can convert it.
std::optional<LONG> container_to_himetric(IOleControlSite* site, float width) {
    POINTL himetric = {};
    POINTF container = {width, 0};
    if (!site || FAILED(site->TransformCoords(&himetric, &container,
                                              XFORMCOORDS_SIZE | XFORMCOORDS_CONTAINERTOHIMETRIC)))
        return std::nullopt;
    return himetric.x;
}

} // namespace

std::u16string Extender::name() const {
    const std::optional<Variant> name = read_property(object().Get(), L"Name");
    if (!name || name->type() != VT_BSTR)
        return {};
    return std::u16string(bstr_view(V_BSTR(&name->get())));
}

float Extender::width(LONG own_pixels) const {
    const float own = width_in_twips(own_pixels);
    const std::optional<float> width = property_number(L"Width");
    if (!width)
        return own;
    const std::optional<LONG> himetric = container_to_himetric(site_.control_site().Get(), *width);
    const float twips = himetric && *himetric > 0 ? himetric_in_twips(*himetric) : own;
    // The unit is twips already: the exact number is better than one that went through two conversions.
    return std::abs(*width - twips) < width_in_twips(1) ? *width : twips;
}

HWND Extender::form_window() const {
    const HWND parent = parent_window();
    return enclosing_form(parent ? parent : site_.window());
}

bool Extender::form_is_mdi_child() const {
    const HWND form = form_window();
    return form && is_mdi_child(form);
}

ComPtr<IDispatch> Extender::object() const {
    ComPtr<IDispatch> object;
    if (const ComPtr<IOleControlSite> site = site_.control_site())
        site->GetExtendedControl(&object);
    return object;
}

std::optional<float> Extender::property_number(const wchar_t* name) const {
    const std::optional<Variant> value = read_property(object().Get(), name);
    Variant number;
    if (!value || value->type() == VT_EMPTY || FAILED(convert(value->get(), VT_R4, number)))
        return std::nullopt;
    return V_R4(&number.get());
}

HWND Extender::parent_window() const {
    const std::optional<Variant> parent = read_property(object().Get(), L"Parent");
    const ComPtr<IDispatch> form = parent ? parent->object_as<IDispatch>() : nullptr;
    const std::optional<Variant> handle = read_property(form.Get(), L"hWnd");
    Variant number;
    if (!handle || handle->is_object() || FAILED(convert(handle->get(), VT_I8, number)))
        return nullptr;
    const auto window = reinterpret_cast<HWND>(static_cast<std::intptr_t>(V_I8(&number.get())));
    return IsWindow(window) ? window : nullptr;
}

} // namespace vellora::com
