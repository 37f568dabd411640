#include "support/container/arrays.h"

#include "support/container/text.h"

namespace vellora::test {
namespace {

std::string type_name(VARTYPE element) {
    switch (element) {
    case VT_BSTR:
        return "String";
    case VT_VARIANT:
        return "Variant";
    case VT_I2:
        return "Integer";
    case VT_I4:
        return "Long";
    default:
        return "type " + std::to_string(element);
    }
}

Variant element_at(SAFEARRAY* array, VARTYPE type, std::vector<LONG>& index) {
    Variant element;
    if (type == VT_VARIANT) {
        SafeArrayGetElement(array, index.data(), element.out());
        return element;
    }
    VARIANT* value = element.out();
    if (SUCCEEDED(SafeArrayGetElement(array, index.data(), &value->llVal)))
        value->vt = type;
    return element;
}

LONG bound(SAFEARRAY* array, UINT dimension, bool lower) {
    LONG result = 0;
    if (lower)
        SafeArrayGetLBound(array, dimension, &result);
    else
        SafeArrayGetUBound(array, dimension, &result);
    return result;
}

std::string braces(SAFEARRAY* array, VARTYPE type, UINT dimension, std::vector<LONG>& index) {
    std::string text = "{";
    for (LONG i = bound(array, dimension, true); i <= bound(array, dimension, false); ++i) {
        if (text.size() > 1)
            text += ", ";
        index[dimension - 1] = i;
        text += dimension == index.size() ? element_at(array, type, index).describe()
                                          : braces(array, type, dimension + 1, index);
    }
    return text + "}";
}

Variant put_all(SAFEARRAY* array, const std::vector<Variant>& elements, LONG first) {
    for (const Variant& element : elements) {
        SafeArrayPutElement(array, &first, element.argument());
        ++first;
    }
    return Variant(array);
}

} // namespace

Variant text_array(const std::vector<std::wstring>& texts, long lower_bound) {
    SAFEARRAY* array = SafeArrayCreateVector(VT_BSTR, lower_bound, static_cast<ULONG>(texts.size()));
    LONG index = lower_bound;
    for (const std::wstring& text : texts) {
        Bstr element(text);
        SafeArrayPutElement(array, &index, element.get());
        ++index;
    }
    return Variant(array);
}

Variant variant_array(const std::vector<Variant>& elements, long lower_bound) {
    return put_all(SafeArrayCreateVector(VT_VARIANT, lower_bound, static_cast<ULONG>(elements.size())),
                   elements, lower_bound);
}

Variant long_array(const std::vector<long>& numbers, long lower_bound) {
    SAFEARRAY* array = SafeArrayCreateVector(VT_I4, lower_bound, static_cast<ULONG>(numbers.size()));
    LONG index = lower_bound;
    for (long number : numbers) {
        SafeArrayPutElement(array, &index, &number);
        ++index;
    }
    return Variant(array);
}

Variant text_table(const std::vector<std::vector<std::wstring>>& rows, long lower_first, long lower_second) {
    SAFEARRAYBOUND bounds[2] = {{static_cast<ULONG>(rows.size()), lower_first},
                                {static_cast<ULONG>(rows.empty() ? 0 : rows[0].size()), lower_second}};
    SAFEARRAY* array = SafeArrayCreate(VT_BSTR, 2, bounds);
    for (std::size_t i = 0; i < rows.size(); ++i)
        for (std::size_t j = 0; j < rows[i].size(); ++j) {
            LONG index[2] = {lower_first + static_cast<LONG>(i), lower_second + static_cast<LONG>(j)};
            Bstr element(rows[i][j]);
            SafeArrayPutElement(array, index, element.get());
        }
    return Variant(array);
}

Variant blank_array(VARTYPE element, const std::vector<SAFEARRAYBOUND>& bounds) {
    return Variant(SafeArrayCreate(element, static_cast<UINT>(bounds.size()),
                                   const_cast<SAFEARRAYBOUND*>(bounds.data())));
}

std::string describe_array(SAFEARRAY* array) {
    if (!array)
        return "no array";
    VARTYPE type = VT_EMPTY;
    SafeArrayGetVartype(array, &type);
    const UINT rank = SafeArrayGetDim(array);
    std::string text = type_name(type) + "(";
    for (UINT d = 1; d <= rank; ++d)
        text += (d > 1 ? ", " : "") + std::to_string(bound(array, d, true)) + " To " +
                std::to_string(bound(array, d, false));
    std::vector<LONG> index(rank);
    return text + ") " + braces(array, type, 1, index);
}

} // namespace vellora::test
