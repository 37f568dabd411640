#include "support/container/variant.h"

#include "support/container/arrays.h"
#include "support/container/text.h"

#include <cstdio>
#include <utility>

namespace vellora::test {
namespace {

std::string real_text(double value) {
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.9g", value);
    return buffer;
}

std::string object_text(const IUnknown* object) {
    return object ? "object" : "Nothing";
}

std::string error_text(SCODE code) {
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "Error %08lX", static_cast<unsigned long>(code));
    return buffer;
}

} // namespace

Variant::Variant(const wchar_t* text) : Variant(std::wstring(text)) {}
Variant::Variant(const std::wstring& text) {
    value_.vt = VT_BSTR;
    value_.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
}
Variant::Variant(std::int16_t number) noexcept {
    value_.vt = VT_I2;
    value_.iVal = number;
}
Variant::Variant(int number) noexcept : Variant(static_cast<long>(number)) {}
Variant::Variant(long number) noexcept {
    value_.vt = VT_I4;
    value_.lVal = number;
}
Variant::Variant(float number) noexcept {
    value_.vt = VT_R4;
    value_.fltVal = number;
}
Variant::Variant(double number) noexcept {
    value_.vt = VT_R8;
    value_.dblVal = number;
}
Variant::Variant(bool truth) noexcept {
    value_.vt = VT_BOOL;
    value_.boolVal = truth ? VARIANT_TRUE : VARIANT_FALSE;
}
Variant::Variant(IDispatch* object) noexcept {
    value_.vt = VT_DISPATCH;
    value_.pdispVal = object;
    if (object)
        object->AddRef();
}
Variant::Variant(IUnknown* object) noexcept {
    value_.vt = VT_UNKNOWN;
    value_.punkVal = object;
    if (object)
        object->AddRef();
}
Variant::Variant(SAFEARRAY* array) {
    VARTYPE element = VT_EMPTY;
    SafeArrayGetVartype(array, &element);
    value_.vt = static_cast<VARTYPE>(VT_ARRAY | element);
    value_.parray = array;
}
Variant::Variant(const VARIANT& value) : Variant() {
    VariantCopyInd(&value_, const_cast<VARIANT*>(&value));
}

Variant::Variant(const Variant& other) : Variant() {
    VariantCopy(&value_, other.argument());
}
Variant::Variant(Variant&& other) noexcept : value_(other.value_) {
    VariantInit(&other.value_);
}
Variant& Variant::operator=(Variant other) noexcept {
    std::swap(value_, other.value_);
    return *this;
}
Variant::~Variant() {
    VariantClear(&value_);
}

Variant Variant::null() {
    Variant result;
    result.value_.vt = VT_NULL;
    return result;
}
Variant Variant::missing() {
    Variant result;
    result.value_.vt = VT_ERROR;
    result.value_.scode = DISP_E_PARAMNOTFOUND;
    return result;
}
Variant Variant::date(double days) {
    Variant result;
    result.value_.vt = VT_DATE;
    result.value_.date = days;
    return result;
}

VARIANT* Variant::out() {
    VariantClear(&value_);
    return &value_;
}

std::wstring Variant::text() const {
    Variant converted;
    if (FAILED(VariantChangeType(&converted.value_, argument(), 0, VT_BSTR)) || !converted.value_.bstrVal)
        return {};
    return std::wstring(converted.value_.bstrVal, SysStringLen(converted.value_.bstrVal));
}
long Variant::number() const {
    Variant converted;
    return FAILED(VariantChangeType(&converted.value_, argument(), 0, VT_I4)) ? 0 : converted.value_.lVal;
}
double Variant::real() const {
    Variant converted;
    return FAILED(VariantChangeType(&converted.value_, argument(), 0, VT_R8)) ? 0 : converted.value_.dblVal;
}
bool Variant::truth() const {
    Variant converted;
    return SUCCEEDED(VariantChangeType(&converted.value_, argument(), 0, VT_BOOL)) &&
           converted.value_.boolVal != VARIANT_FALSE;
}

std::string Variant::describe() const {
    if (value_.vt & VT_BYREF)
        return Variant(value_).describe();
    if (value_.vt & VT_ARRAY)
        return describe_array(value_.parray);
    switch (value_.vt) {
    case VT_EMPTY:
        return "Empty";
    case VT_NULL:
        return "Null";
    case VT_BSTR:
        return '"' + utf8(text()) + '"';
    case VT_BOOL:
        return value_.boolVal ? "True" : "False";
    case VT_I2:
        return "I2 " + std::to_string(value_.iVal);
    case VT_I4:
        return "I4 " + std::to_string(value_.lVal);
    case VT_R4:
        return "R4 " + real_text(static_cast<double>(value_.fltVal));
    case VT_R8:
        return "R8 " + real_text(value_.dblVal);
    case VT_DISPATCH:
        return object_text(value_.pdispVal);
    case VT_UNKNOWN:
        return object_text(value_.punkVal);
    case VT_ERROR:
        return error_text(value_.scode);
    default:
        return "type " + std::to_string(value_.vt);
    }
}

} // namespace vellora::test
