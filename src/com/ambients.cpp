#include "com/ambients.h"

#include "com/bstr.h"
#include "com/object_property.h"
#include "com/guard.h"

#include <cstdlib>

namespace vellora::com {

namespace {

constexpr int tenth_points_per_inch = 720;

CY size_in_ten_thousandth_points(LONG pixel_height) noexcept {
    const HDC screen = GetDC(nullptr);
    const int resolution = screen ? GetDeviceCaps(screen, LOGPIXELSY) : 96;
    if (screen)
        ReleaseDC(nullptr, screen);
    CY size = {};
    size.int64 = MulDiv(std::abs(pixel_height), tenth_points_per_inch, resolution) * 1000LL;
    return size;
}

ComPtr<IFontDisp> message_font() {
    NONCLIENTMETRICSW metrics = {};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    LOGFONTW& look = metrics.lfMessageFont;
    FONTDESC description = {};
    description.cbSizeofstruct = sizeof description;
    description.lpstrName = look.lfFaceName;
    description.cySize = size_in_ten_thousandth_points(look.lfHeight);
    description.sWeight = static_cast<SHORT>(look.lfWeight);
    description.sCharset = look.lfCharSet;
    description.fItalic = look.lfItalic;
    ComPtr<IFontDisp> font;
    check(OleCreateFontIndirect(&description, IID_IFontDisp, &font));
    return font;
}

/// The container keeps its own font object: what the control's user changes must not reach the container.
ComPtr<IFontDisp> copy_of_font(const Variant& value) {
    const ComPtr<IFont> original = value.object_as<IFont>();
    ComPtr<IFont> copy;
    ComPtr<IFontDisp> font;
    if (original && SUCCEEDED(original->Clone(&copy)))
        copy.As(&font);
    return font;
}

} // namespace

bool Ambients::user_mode() const {
    return flag(DISPID_AMBIENT_USERMODE, true);
}

bool Ambients::ui_dead() const {
    return flag(DISPID_AMBIENT_UIDEAD, false);
}

LCID Ambients::locale() const {
    const std::optional<Variant> value = get(DISPID_AMBIENT_LOCALEID);
    Variant number;
    if (!value || FAILED(convert(value->get(), VT_I4, number)) || V_I4(&number.get()) == 0)
        return LOCALE_USER_DEFAULT;
    return static_cast<LCID>(V_I4(&number.get()));
}

std::u16string Ambients::display_name() const {
    const std::optional<Variant> value = get(DISPID_AMBIENT_DISPLAYNAME);
    if (!value || value->type() != VT_BSTR)
        return {};
    return std::u16string(bstr_view(V_BSTR(&value->get())));
}

ComPtr<IFontDisp> Ambients::font() const {
    const std::optional<Variant> value = get(DISPID_AMBIENT_FONT);
    ComPtr<IFontDisp> font;
    if (value)
        font = copy_of_font(*value);
    return font ? font : message_font();
}

std::optional<Variant> Ambients::get(DISPID id) const {
    const ComPtr<IDispatch> properties = site_.ambient_properties();
    return read_property(properties.Get(), id);
}

bool Ambients::flag(DISPID id, bool otherwise) const {
    const std::optional<Variant> value = get(id);
    Variant boolean;
    if (!value || value->type() == VT_EMPTY || FAILED(convert(value->get(), VT_BOOL, boolean)))
        return otherwise;
    return V_BOOL(&boolean.get()) != VARIANT_FALSE;
}

} // namespace vellora::com
