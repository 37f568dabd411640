#include "server/saved_values.h"

#include "com/bstr.h"
#include "runtime/host_error.h"
#include "server/host_objects.h"

#include <type_traits>

namespace vellora::server {

namespace {

using com::Variant;

template <typename Type> constexpr VARTYPE variant_type = VT_UNKNOWN;
template <> constexpr VARTYPE variant_type<bool> = VT_BOOL;
template <> constexpr VARTYPE variant_type<std::int16_t> = VT_I2;
template <> constexpr VARTYPE variant_type<std::int32_t> = VT_I4;
template <> constexpr VARTYPE variant_type<float> = VT_R4;
template <> constexpr VARTYPE variant_type<std::u16string> = VT_BSTR;

template <typename Interface> com::ComPtr<Interface> object_in(const Variant& value) {
    if (!value.is_object()) {
        throw HostError(error_number::type_mismatch);
    }
    const auto found = value.object_as<Interface>();
    if (!found && value.object()) {
        throw HostError(error_number::type_mismatch);
    }
    return found;
}

SavedValue take(const Variant& value, const FontRef& when_nothing) {
    const FontRef font = to_font(object_in<IFontDisp>(value).Get());
    return font ? font : when_nothing;
}

SavedValue take(const Variant& value, const PictureRef&) {
    return to_picture(object_in<IPictureDisp>(value).Get());
}

SavedValue take(const Variant& value, const ImageListRef&) {
    return to_image_list(object_in<IDispatch>(value).Get());
}

SavedValue take(const Variant& value, bool) {
    return V_BOOL(&com::converted(value.get(), VT_BOOL).get()) != VARIANT_FALSE;
}

SavedValue take(const Variant& value, std::int16_t) { return V_I2(&com::converted(value.get(), VT_I2).get()); }

SavedValue take(const Variant& value, std::int32_t) {
    return std::int32_t{V_I4(&com::converted(value.get(), VT_I4).get())};
}

SavedValue take(const Variant& value, float) { return V_R4(&com::converted(value.get(), VT_R4).get()); }

SavedValue take(const Variant& value, const std::u16string&) {
    const Variant text = com::converted(value.get(), VT_BSTR);
    return std::u16string(com::bstr_view(V_BSTR(&text.get())));
}

Variant to_variant(const FontRef& font) { return Variant(com::ComPtr<IUnknown>(font_object(font)).Get()); }

Variant to_variant(const PictureRef& picture) {
    return Variant(com::ComPtr<IUnknown>(picture_object(picture)).Get());
}

Variant to_variant(const ImageListRef& image_list) {
    return Variant(com::ComPtr<IUnknown>(image_list_object(image_list)).Get());
}

template <typename Plain> Variant to_variant(const Plain& value) { return Variant(value); }

} // namespace

SavedValue SavedValues::read(std::u16string_view key, const SavedValue& when_absent) {
    return std::visit(
        [&](const auto& absent) -> SavedValue {
            using Type = std::decay_t<decltype(absent)>;
            const auto stored = store_.read(key, variant_type<Type>);
            return stored ? take(*stored, absent) : SavedValue(absent);
        },
        when_absent);
}

void SavedValues::write(std::u16string_view key, const SavedValue& value) {
    std::visit([&](const auto& plain) { store_.write(key, to_variant(plain).get()); }, value);
}

} // namespace vellora::server
