#include "server/dual.h"

#include "control/control.h"

namespace vellora::server {

STDMETHODIMP DualVellora::ShowList() noexcept {
    return run([&] { control_.drop_down().ShowList(); });
}

STDMETHODIMP DualVellora::HideList() noexcept {
    return run([&] { control_.drop_down().HideList(); });
}

STDMETHODIMP DualVellora::get_DropDownHeight(float* result) noexcept {
    return answer(result, [&] { return control_.placement().DropDownHeight(); });
}

STDMETHODIMP DualVellora::put_DropDownHeight(float value) noexcept {
    return run([&] { control_.placement().put_DropDownHeight(value); });
}

STDMETHODIMP DualVellora::get_DropDownBackColor(OLE_COLOR* result) noexcept {
    return answer(result, [&] { return control_.placement().DropDownBackColor(); });
}

STDMETHODIMP DualVellora::put_DropDownBackColor(OLE_COLOR value) noexcept {
    return run([&] { control_.placement().put_DropDownBackColor(value); });
}

STDMETHODIMP DualVellora::get_DropDownForeColor(OLE_COLOR* result) noexcept {
    return answer(result, [&] { return control_.placement().DropDownForeColor(); });
}

STDMETHODIMP DualVellora::put_DropDownForeColor(OLE_COLOR value) noexcept {
    return run([&] { control_.placement().put_DropDownForeColor(value); });
}

STDMETHODIMP DualVellora::get_DropDownAlignment(::vlDropDownAlignmentConstants* result) noexcept {
    return answer(result, [&] { return control_.placement().DropDownAlignment(); });
}

STDMETHODIMP DualVellora::put_DropDownAlignment(::vlDropDownAlignmentConstants value) noexcept {
    return run([&] { control_.placement().put_DropDownAlignment(value); });
}

STDMETHODIMP DualVellora::get_DropDownWidthOffset(float* result) noexcept {
    return answer(result, [&] { return control_.placement().DropDownWidthOffset(); });
}

STDMETHODIMP DualVellora::put_DropDownWidthOffset(float value) noexcept {
    return run([&] { control_.placement().put_DropDownWidthOffset(value); });
}

STDMETHODIMP DualVellora::get_AllowResize(VARIANT_BOOL* result) noexcept {
    return answer(result, [&] { return control_.resize_grip().AllowResize(); });
}

STDMETHODIMP DualVellora::put_AllowResize(VARIANT_BOOL value) noexcept {
    return run([&] { control_.resize_grip().put_AllowResize(value != VARIANT_FALSE); });
}

} // namespace vellora::server
