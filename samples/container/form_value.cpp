#include "form_value.h"

#include "hosting/variant.h"

#include <charconv>
#include <cmath>
#include <iterator>
#include <new>

namespace vellora::samples {

namespace {

/// Numbers look the same in every country.
void change(Variant& value, VARTYPE type) {
    check_value(VariantChangeTypeEx(value.get(), value.get(), LOCALE_INVARIANT, VARIANT_ALPHABOOL, type));
}

double finite(double number) {
    if (!std::isfinite(number))
        throw FormValueError{DISP_E_OVERFLOW};
    return number;
}

/// The number a user would write: 8.1 is not 8.1000003814697.
double shortest(float number) {
    char text[32];
    double result = 0;
    std::from_chars(text, std::to_chars(text, std::end(text), number).ptr, result);
    return result;
}

double double_of(Variant& value) {
    if (value.type() == VT_R4)
        return finite(shortest(value.get()->fltVal));
    change(value, VT_R8);
    return finite(value.get()->dblVal);
}

std::int32_t long_of(Variant& value) {
    change(value, VT_I4);
    return value.get()->lVal;
}

std::u16string text_of(Variant& value) {
    change(value, VT_BSTR);
    const BSTR text = value.get()->bstrVal;
    return text ? std::u16string(reinterpret_cast<const char16_t*>(text), SysStringLen(text)) : std::u16string();
}

FormValue value_of(Variant& value) {
    switch (value.type()) {
    case VT_BOOL:
    case VT_I1:
    case VT_I2:
    case VT_I4:
    case VT_INT:
    case VT_UI1:
    case VT_UI2:
        return long_of(value);
    case VT_R4:
    case VT_R8:
    case VT_CY:
    case VT_DATE:
        return double_of(value);
    case VT_BSTR:
    case VT_UI4:
    case VT_UINT:
    case VT_I8:
    case VT_UI8:
    case VT_DECIMAL:
        return text_of(value);
    default:
        throw FormValueError{DISP_E_TYPEMISMATCH};
    }
}

BSTR bstr_of(std::u16string_view text) {
    const BSTR result =
        SysAllocStringLen(reinterpret_cast<const wchar_t*>(text.data()), static_cast<UINT>(text.size()));
    if (!result)
        throw std::bad_alloc();
    return result;
}

void fill(VARIANT& variant, const FormValue& value) {
    if (const auto number = std::get_if<std::int32_t>(&value)) {
        variant.vt = VT_I4;
        variant.lVal = *number;
    } else if (const auto fraction = std::get_if<double>(&value)) {
        variant.vt = VT_R8;
        variant.dblVal = *fraction;
    } else {
        const auto text = std::get_if<std::u16string>(&value);
        variant.bstrVal = bstr_of(text ? *text : std::get<FormLiteral>(value).text);
        variant.vt = VT_BSTR;
    }
}

} // namespace

void check_value(HRESULT result) {
    if (FAILED(result))
        throw FormValueError{result};
}

FormSetting plain_setting(std::u16string_view name, const VARIANT& value) {
    Variant copy;
    check_value(VariantCopyInd(copy.out(), const_cast<VARIANT*>(&value)));
    std::u16string comment;
    if (copy.type() == VT_BOOL)
        comment = copy.get()->boolVal ? u"True" : u"False";
    return {std::u16string(name), value_of(copy), comment};
}

VARIANT plain_variant(const FormValue& value, VARTYPE type) {
    Variant variant;
    fill(*variant.out(), value);
    if (type != VT_EMPTY)
        change(variant, type);
    return std::exchange(*variant.get(), VARIANT{});
}

} // namespace vellora::samples
