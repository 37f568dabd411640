#include "text_array.h"

#include "bstr.h"
#include "failure.h"

namespace vellora::samples {

namespace {

void put(SAFEARRAY* array, LONG* indices, const std::wstring& text) {
    const Bstr copy(text);
    check(SafeArrayPutElement(array, indices, copy.get()), L"Filling an array");
}

} // namespace

TextArray::TextArray(const TextRow& row) {
    adopt(SafeArrayCreateVector(VT_BSTR, 0, static_cast<ULONG>(row.size())));
    LONG index = 0;
    for (const std::wstring& text : row) {
        put(value_.parray, &index, text);
        ++index;
    }
}

TextArray::TextArray(const TextRows& rows) {
    const ULONG columns = rows.empty() ? 0 : static_cast<ULONG>(rows.front().size());
    SAFEARRAYBOUND bounds[] = {{static_cast<ULONG>(rows.size()), 0}, {columns, 0}};
    adopt(SafeArrayCreate(VT_BSTR, 2, bounds));
    LONG indices[] = {0, 0};
    for (const TextRow& row : rows) {
        indices[1] = 0;
        for (const std::wstring& text : row) {
            put(value_.parray, indices, text);
            ++indices[1];
        }
        ++indices[0];
    }
}

void TextArray::adopt(SAFEARRAY* array) {
    if (!array)
        throw std::bad_alloc();
    value_.vt = VT_ARRAY | VT_BSTR;
    value_.parray = array;
}

} // namespace vellora::samples
