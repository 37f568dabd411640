#include "server/dual.h"

#include "com/bstr.h"
#include "com/variant_view.h"
#include "control/control.h"
#include "server/host_objects.h"

namespace vellora::server {

STDMETHODIMP DualVellora::get_Columns(short* result) noexcept {
    return answer(result, [&] { return control_.columns().Columns(); });
}

STDMETHODIMP DualVellora::put_Columns(short value) noexcept {
    return run([&] { control_.columns().put_Columns(value); });
}

STDMETHODIMP DualVellora::get_ColumnHeader(short ColumnIndex, BSTR* result) noexcept {
    return answer(result, [&] { return control_.columns().ColumnHeader(ColumnIndex); });
}

STDMETHODIMP DualVellora::put_ColumnHeader(short ColumnIndex, BSTR value) noexcept {
    return run([&] { control_.columns().put_ColumnHeader(ColumnIndex, com::bstr_view(value)); });
}

STDMETHODIMP DualVellora::get_ColumnWidth(short ColumnIndex, float* result) noexcept {
    return answer(result, [&] { return control_.columns().ColumnWidth(ColumnIndex); });
}

STDMETHODIMP DualVellora::put_ColumnWidth(short ColumnIndex, float value) noexcept {
    return run([&] { control_.columns().put_ColumnWidth(ColumnIndex, value); });
}

STDMETHODIMP DualVellora::get_ColumnHidden(short ColumnIndex, VARIANT_BOOL* result) noexcept {
    return answer(result, [&] { return control_.columns().ColumnHidden(ColumnIndex); });
}

STDMETHODIMP DualVellora::put_ColumnHidden(short ColumnIndex, VARIANT_BOOL value) noexcept {
    return run([&] { control_.columns().put_ColumnHidden(ColumnIndex, value != VARIANT_FALSE); });
}

STDMETHODIMP DualVellora::get_ColumnLocked(short ColumnIndex, VARIANT_BOOL* result) noexcept {
    return answer(result, [&] { return control_.columns().ColumnLocked(ColumnIndex); });
}

STDMETHODIMP DualVellora::put_ColumnLocked(short ColumnIndex, VARIANT_BOOL value) noexcept {
    return run([&] { control_.columns().put_ColumnLocked(ColumnIndex, value != VARIANT_FALSE); });
}

STDMETHODIMP DualVellora::get_HideColumnHeaders(VARIANT_BOOL* result) noexcept {
    return answer(result, [&] { return control_.columns().HideColumnHeaders(); });
}

STDMETHODIMP DualVellora::put_HideColumnHeaders(VARIANT_BOOL value) noexcept {
    return run([&] { control_.columns().put_HideColumnHeaders(value != VARIANT_FALSE); });
}

STDMETHODIMP DualVellora::get_AutoSize(::vlAutoSizeConstants* result) noexcept {
    return answer(result, [&] { return control_.column_sizes().AutoSize(); });
}

STDMETHODIMP DualVellora::put_AutoSize(::vlAutoSizeConstants value) noexcept {
    return run([&] { control_.column_sizes().put_AutoSize(value); });
}

STDMETHODIMP DualVellora::AutoSizeNow(::vlAutoSizeConstants Setting) noexcept {
    return run([&] { control_.column_sizes().AutoSizeNow(Setting); });
}

STDMETHODIMP DualVellora::get_ColumnOrder(VARIANT* result) noexcept {
    return answer(result, [&] { return control_.column_order().Order(); });
}

STDMETHODIMP DualVellora::put_ColumnOrder(VARIANT value) noexcept {
    return run([&] { control_.column_order().put_Order(com::VariantView(value)); });
}

STDMETHODIMP DualVellora::get_AllowColumnReorder(VARIANT_BOOL* result) noexcept {
    return answer(result, [&] { return control_.column_order().AllowColumnReorder(); });
}

STDMETHODIMP DualVellora::put_AllowColumnReorder(VARIANT_BOOL value) noexcept {
    return run([&] { control_.column_order().put_AllowColumnReorder(value != VARIANT_FALSE); });
}

STDMETHODIMP DualVellora::get_HeaderIcons(IDispatch** result) noexcept {
    return answer(result, [&] { return image_list_object(control_.header_icons().Icons()); });
}

STDMETHODIMP DualVellora::putref_HeaderIcons(IDispatch* value) noexcept {
    return run([&] { control_.header_icons().putref_Icons(to_image_list(value)); });
}

STDMETHODIMP DualVellora::get_HeaderIcon(short ColumnIndex, BSTR* result) noexcept {
    return answer(result, [&] { return control_.header_icons().HeaderIcon(ColumnIndex); });
}

STDMETHODIMP DualVellora::put_HeaderIcon(short ColumnIndex, BSTR value) noexcept {
    return run([&] { control_.header_icons().put_HeaderIcon(ColumnIndex, com::bstr_view(value)); });
}

} // namespace vellora::server
