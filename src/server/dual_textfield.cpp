#include "server/dual.h"

#include "com/bstr.h"
#include "control/control.h"

namespace vellora::server {

STDMETHODIMP DualVellora::get_AutoComplete(VARIANT_BOOL* result) noexcept {
    return answer(result, [&] { return control_.text_field().AutoComplete(); });
}

STDMETHODIMP DualVellora::put_AutoComplete(VARIANT_BOOL value) noexcept {
    return run([&] { control_.text_field().put_AutoComplete(value != VARIANT_FALSE); });
}

STDMETHODIMP DualVellora::get_Locked(VARIANT_BOOL* result) noexcept {
    return answer(result, [&] { return control_.text_properties().Locked(); });
}

STDMETHODIMP DualVellora::put_Locked(VARIANT_BOOL value) noexcept {
    return run([&] { control_.text_properties().put_Locked(value != VARIANT_FALSE); });
}

STDMETHODIMP DualVellora::get_MaxLength(long* result) noexcept {
    return answer(result, [&] { return control_.text_properties().MaxLength(); });
}

STDMETHODIMP DualVellora::put_MaxLength(long value) noexcept {
    return run([&] { control_.text_properties().put_MaxLength(value); });
}

STDMETHODIMP DualVellora::get_Alignment(long* result) noexcept {
    return answer(result, [&] { return control_.text_properties().Alignment(); });
}

STDMETHODIMP DualVellora::put_Alignment(long value) noexcept {
    return run([&] { control_.text_properties().put_Alignment(value); });
}

STDMETHODIMP DualVellora::get_LeftMargin(long* result) noexcept {
    return answer(result, [&] { return control_.text_properties().LeftMargin(); });
}

STDMETHODIMP DualVellora::put_LeftMargin(long value) noexcept {
    return run([&] { control_.text_properties().put_LeftMargin(value); });
}

STDMETHODIMP DualVellora::get_RightMargin(long* result) noexcept {
    return answer(result, [&] { return control_.text_properties().RightMargin(); });
}

STDMETHODIMP DualVellora::put_RightMargin(long value) noexcept {
    return run([&] { control_.text_properties().put_RightMargin(value); });
}

STDMETHODIMP DualVellora::get_SelText(BSTR* result) noexcept {
    return answer(result, [&] { return control_.text_properties().SelText(); });
}

STDMETHODIMP DualVellora::put_SelText(BSTR value) noexcept {
    return run([&] { control_.text_properties().put_SelText(com::bstr_view(value)); });
}

STDMETHODIMP DualVellora::get_SelStart(long* result) noexcept {
    return answer(result, [&] { return control_.text_properties().SelStart(); });
}

STDMETHODIMP DualVellora::put_SelStart(long value) noexcept {
    return run([&] { control_.text_properties().put_SelStart(value); });
}

STDMETHODIMP DualVellora::get_SelLength(long* result) noexcept {
    return answer(result, [&] { return control_.text_properties().SelLength(); });
}

STDMETHODIMP DualVellora::put_SelLength(long value) noexcept {
    return run([&] { control_.text_properties().put_SelLength(value); });
}

} // namespace vellora::server
