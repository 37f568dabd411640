#include "server/dual.h"

#include "com/bstr.h"
#include "control/control.h"
#include "server/host_objects.h"

namespace vellora::server {

STDMETHODIMP DualVellora::get_Text(BSTR* result) noexcept {
    return answer(result, [&] { return control_.object().Text(); });
}

STDMETHODIMP DualVellora::put_Text(BSTR value) noexcept {
    return run([&] { control_.object().put_Text(com::bstr_view(value)); });
}

STDMETHODIMP DualVellora::get_hWnd(long* result) noexcept {
    return answer(result, [&] { return control_.object().hWnd(); });
}

STDMETHODIMP DualVellora::get_ContainerHwnd(long* result) noexcept {
    return answer(result, [&] { return control_.object().ContainerHwnd(); });
}

STDMETHODIMP DualVellora::Refresh() noexcept {
    return run([&] { control_.object().Refresh(); });
}

STDMETHODIMP DualVellora::get_AutoHeight(VARIANT_BOOL* result) noexcept {
    return answer(result, [&] { return control_.layout().AutoHeight(); });
}

STDMETHODIMP DualVellora::put_AutoHeight(VARIANT_BOOL value) noexcept {
    return run([&] { control_.layout().put_AutoHeight(value != VARIANT_FALSE); });
}

STDMETHODIMP DualVellora::get_Enabled(VARIANT_BOOL* result) noexcept {
    return answer(result, [&] { return control_.appearance().Enabled(); });
}

STDMETHODIMP DualVellora::put_Enabled(VARIANT_BOOL value) noexcept {
    return run([&] { control_.appearance().put_Enabled(value != VARIANT_FALSE); });
}

STDMETHODIMP DualVellora::get_Font(IFontDisp** result) noexcept {
    return answer(result, [&] { return font_object(control_.appearance().Font()); });
}

STDMETHODIMP DualVellora::putref_Font(IFontDisp* value) noexcept {
    return run([&] { control_.appearance().putref_Font(to_font(value)); });
}

STDMETHODIMP DualVellora::get_ForeColor(OLE_COLOR* result) noexcept {
    return answer(result, [&] { return control_.appearance().ForeColor(); });
}

STDMETHODIMP DualVellora::put_ForeColor(OLE_COLOR value) noexcept {
    return run([&] { control_.appearance().put_ForeColor(value); });
}

STDMETHODIMP DualVellora::get_BackColor(OLE_COLOR* result) noexcept {
    return answer(result, [&] { return control_.appearance().BackColor(); });
}

STDMETHODIMP DualVellora::put_BackColor(OLE_COLOR value) noexcept {
    return run([&] { control_.appearance().put_BackColor(value); });
}

STDMETHODIMP DualVellora::get_ButtonForeColor(OLE_COLOR* result) noexcept {
    return answer(result, [&] { return control_.appearance().ButtonForeColor(); });
}

STDMETHODIMP DualVellora::put_ButtonForeColor(OLE_COLOR value) noexcept {
    return run([&] { control_.appearance().put_ButtonForeColor(value); });
}

STDMETHODIMP DualVellora::get_ButtonBackColor(OLE_COLOR* result) noexcept {
    return answer(result, [&] { return control_.appearance().ButtonBackColor(); });
}

STDMETHODIMP DualVellora::put_ButtonBackColor(OLE_COLOR value) noexcept {
    return run([&] { control_.appearance().put_ButtonBackColor(value); });
}

STDMETHODIMP DualVellora::get_ButtonStyle(::vlButtonStyles* result) noexcept {
    return answer(result, [&] { return control_.appearance().ButtonStyle(); });
}

STDMETHODIMP DualVellora::put_ButtonStyle(::vlButtonStyles value) noexcept {
    return run([&] { control_.appearance().put_ButtonStyle(value); });
}

STDMETHODIMP DualVellora::get_Picture(IPictureDisp** result) noexcept {
    return answer(result, [&] { return picture_object(control_.appearance().Picture()); });
}

STDMETHODIMP DualVellora::putref_Picture(IPictureDisp* value) noexcept {
    return run([&] { control_.appearance().putref_Picture(to_picture(value)); });
}

STDMETHODIMP DualVellora::get_GridLines(VARIANT_BOOL* result) noexcept {
    return answer(result, [&] { return control_.appearance().GridLines(); });
}

STDMETHODIMP DualVellora::put_GridLines(VARIANT_BOOL value) noexcept {
    return run([&] { control_.appearance().put_GridLines(value != VARIANT_FALSE); });
}

STDMETHODIMP DualVellora::get_Version(BSTR* result) noexcept {
    return answer(result, [&] { return control_.about().Version(); });
}

STDMETHODIMP DualVellora::About() noexcept {
    return run([&] { control_.about().ShowAboutBox(); });
}

} // namespace vellora::server
