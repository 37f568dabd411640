#include "com/variant_view.h"

#include "com/bstr.h"
#include "com/default_property.h"
#include "com/variant.h"
#include "runtime/host_error.h"

namespace vellora::com {

namespace {

[[noreturn]] void raise(std::int32_t number) {
    throw HostError(number);
}

std::size_t element_size(VARTYPE type) {
    switch (type) {
    case VT_VARIANT:
        return sizeof(VARIANT);
    case VT_BSTR:
    case VT_DISPATCH:
    case VT_UNKNOWN:
        return sizeof(void*);
    case VT_DECIMAL:
        return sizeof(DECIMAL);
    default:
        return scalar_size(type);
    }
}

std::u16string_view keep(BSTR text, std::u16string& scratch) {
    return scratch = bstr_view(text);
}

std::u16string_view plain_text(const VARIANT& value, std::u16string& scratch) {
    switch (V_VT(&value)) {
    case VT_BSTR:
        return bstr_view(V_BSTR(&value));
    case VT_BSTR | VT_BYREF:
        return bstr_view(*V_BSTRREF(&value));
    case VT_ERROR:
    case VT_ERROR | VT_BYREF:
        raise(error_number::type_mismatch);
    default:
        return keep(V_BSTR(&converted(value, VT_BSTR).get()), scratch);
    }
}

std::u16string_view text_of(const VARIANT& value, std::u16string& scratch) {
    const VARIANT& source = resolved(value);
    if (!holds_object(source))
        return plain_text(source, scratch);
    const Variant property = default_value(source);
    return scratch = std::u16string(plain_text(property.get(), scratch));
}

} // namespace

VariantView::VariantView(const VARIANT& value) : value_(resolved(value)) {
    is_array_ = (V_VT(&value_) & VT_ARRAY) != 0;
    if (is_array_)
        lock_array(value_);
}

VariantView::~VariantView() {
    if (array_)
        SafeArrayUnlock(array_);
}

void VariantView::lock_array(const VARIANT& value) {
    element_type_ = V_VT(&value) & VT_TYPEMASK;
    SAFEARRAY* array = V_ISBYREF(&value) ? *V_ARRAYREF(&value) : V_ARRAY(&value);
    if (!array)
        return;
    if (SafeArrayGetElemsize(array) != element_size(element_type_) || FAILED(SafeArrayLock(array)))
        raise(error_number::type_mismatch);
    array_ = array;
    prepare_fast_path();
}

void VariantView::prepare_fast_path() {
    if (array_->cDims != 1)
        return;
    first_element_ = static_cast<const char*>(array_->pvData);
    first_index_ = array_->rgsabound[0].lLbound;
    count_ = array_->rgsabound[0].cElements;
}

std::int32_t VariantView::lower_bound(int dimension) const {
    LONG bound = 0;
    if (!array_ || FAILED(SafeArrayGetLBound(array_, static_cast<UINT>(dimension), &bound)))
        raise(error_number::subscript_out_of_range);
    return bound;
}

std::int32_t VariantView::upper_bound(int dimension) const {
    LONG bound = 0;
    if (!array_ || FAILED(SafeArrayGetUBound(array_, static_cast<UINT>(dimension), &bound)))
        raise(error_number::subscript_out_of_range);
    return bound;
}

std::u16string_view VariantView::text(std::u16string& scratch) const {
    if (is_array_)
        raise(error_number::type_mismatch);
    return text_of(value_, scratch);
}

std::u16string_view VariantView::text_at(std::int32_t index, std::u16string& scratch) const {
    return element_text(element(index), scratch);
}

std::u16string_view VariantView::text_at(std::int32_t first, std::int32_t second,
                                         std::u16string& scratch) const {
    LONG indices[] = {first, second};
    return element_text(element_by_indices(indices, 2), scratch);
}

std::int16_t VariantView::integer_at(std::int32_t index) const {
    const VARIANT value = element_variant(element(index));
    const VARIANT& source = resolved(value);
    if (!holds_object(source))
        return V_I2(&converted(source, VT_I2).get());
    return V_I2(&converted(default_value(source).get(), VT_I2).get());
}

const void* VariantView::element(std::int32_t index) const {
    const std::int64_t offset = index - first_index_;
    if (!first_element_ || offset < 0 || offset >= count_)
        raise(error_number::subscript_out_of_range);
    return first_element_ + static_cast<std::size_t>(offset) * array_->cbElements;
}

const void* VariantView::element_by_indices(LONG* indices, UINT count) const {
    void* found = nullptr;
    if (!array_ || array_->cDims != count || FAILED(SafeArrayPtrOfIndex(array_, indices, &found)))
        raise(error_number::subscript_out_of_range);
    return found;
}

std::u16string_view VariantView::element_text(const void* element, std::u16string& scratch) const {
    if (element_type_ == VT_BSTR)
        return bstr_view(*static_cast<const BSTR*>(element));
    if (element_type_ == VT_VARIANT)
        return text_of(*static_cast<const VARIANT*>(element), scratch);
    return text_of(element_variant(element), scratch);
}

VARIANT VariantView::element_variant(const void* element) const {
    VARIANT value = {};
    V_VT(&value) = static_cast<VARTYPE>(element_type_ | VT_BYREF);
    V_BYREF(&value) = const_cast<void*>(element);
    return value;
}

} // namespace vellora::com
