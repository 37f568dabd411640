#include "com/variant.h"

#include "com/bstr.h"
#include "com/guard.h"
#include "runtime/host_error.h"

#include <new>
#include <utility>

namespace vellora::com {

namespace {

[[noreturn]] void raise_conversion_error(HRESULT result) {
    if (result == E_OUTOFMEMORY)
        throw std::bad_alloc();
    throw HostError(result == DISP_E_OVERFLOW ? error_number::overflow : error_number::type_mismatch);
}

} // namespace

Variant::Variant(std::int16_t value) noexcept : Variant() {
    V_VT(&value_) = VT_I2;
    V_I2(&value_) = value;
}

Variant::Variant(std::int32_t value) noexcept : Variant() {
    V_VT(&value_) = VT_I4;
    V_I4(&value_) = value;
}

Variant::Variant(float value) noexcept : Variant() {
    V_VT(&value_) = VT_R4;
    V_R4(&value_) = value;
}

Variant::Variant(bool value) noexcept : Variant() {
    V_VT(&value_) = VT_BOOL;
    V_BOOL(&value_) = value ? VARIANT_TRUE : VARIANT_FALSE;
}

Variant::Variant(std::u16string_view value) : Variant() {
    V_BSTR(&value_) = make_bstr(value);
    V_VT(&value_) = VT_BSTR;
}

Variant::Variant(IUnknown* object) noexcept : Variant() {
    ComPtr<IDispatch> dispatch;
    if (!object || SUCCEEDED(object->QueryInterface(IID_PPV_ARGS(&dispatch)))) {
        V_VT(&value_) = VT_DISPATCH;
        V_DISPATCH(&value_) = dispatch.Detach();
    } else {
        V_VT(&value_) = VT_UNKNOWN;
        V_UNKNOWN(&value_) = object;
        object->AddRef();
    }
}

Variant Variant::copy_of(const VARIANT& value) {
    Variant copy;
    check(VariantCopyInd(copy.put(), const_cast<VARIANT*>(&value)));
    return copy;
}

Variant& Variant::operator=(Variant&& other) noexcept {
    std::swap(value_, other.value_);
    return *this;
}

VARIANT* Variant::put() noexcept {
    VariantClear(&value_);
    value_ = {};
    return &value_;
}

VARIANT Variant::release() noexcept {
    return std::exchange(value_, VARIANT{});
}

ComPtr<IUnknown> Variant::object() const noexcept {
    return is_object() ? V_UNKNOWN(&value_) : nullptr;
}

HRESULT convert(const VARIANT& value, VARTYPE type, Variant& out) {
    return VariantChangeTypeEx(out.put(), const_cast<VARIANT*>(&resolved(value)), LOCALE_USER_DEFAULT,
                               VARIANT_ALPHABOOL | VARIANT_LOCALBOOL, type);
}

Variant converted(const VARIANT& value, VARTYPE type) {
    if (V_VT(&resolved(value)) == VT_NULL)
        throw HostError(error_number::invalid_use_of_null);
    Variant result;
    const HRESULT outcome = convert(value, type, result);
    if (FAILED(outcome))
        raise_conversion_error(outcome);
    return result;
}

std::size_t scalar_size(VARTYPE type) noexcept {
    switch (type) {
    case VT_I1:
    case VT_UI1:
        return 1;
    case VT_I2:
    case VT_UI2:
    case VT_BOOL:
        return 2;
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
    case VT_R4:
    case VT_ERROR:
        return 4;
    case VT_I8:
    case VT_UI8:
    case VT_R8:
    case VT_CY:
    case VT_DATE:
        return 8;
    default:
        return 0;
    }
}

const VARIANT& resolved(const VARIANT& value) {
    constexpr int deepest = 16; // a chain of references this long is a circle
    const VARIANT* current = &value;
    for (int depth = 0; V_VT(current) == (VT_VARIANT | VT_BYREF); ++depth) {
        current = V_VARIANTREF(current);
        if (!current || depth == deepest)
            throw HostError(error_number::type_mismatch);
    }
    if (V_ISBYREF(current) && !V_BYREF(current))
        throw HostError(error_number::type_mismatch);
    return *current;
}

} // namespace vellora::com
