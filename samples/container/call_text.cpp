#include "call_text.h"

#include "hosting/failure.h"

#include <algorithm>
#include <vector>

namespace vellora::samples {

namespace {

constexpr LONG most_shown = 100; // elements of an array that are still a help to see
constexpr int deepest = 8;       // arrays in arrays

void skip_blanks(const std::wstring& text, std::size_t& at) {
    while (at < text.size() && text[at] == L' ')
        ++at;
}

Variant truth(bool value) {
    Variant result;
    result.out()->vt = VT_BOOL;
    result.get()->boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
    return result;
}

/// A number where the text is one, or truth; else the text itself.
Variant plain_value(const std::wstring& text) {
    if (lstrcmpiW(text.c_str(), L"True") == 0 || lstrcmpiW(text.c_str(), L"False") == 0)
        return truth(lstrcmpiW(text.c_str(), L"True") == 0);
    Variant value(text);
    const bool digits = !text.empty() && text.find_first_not_of(L"+-.0123456789") == std::wstring::npos;
    if (digits && !(text.find(L'.') == std::wstring::npos && value.change_to(VT_I4)))
        value.change_to(VT_R8);
    return value;
}

std::wstring quoted(const std::wstring& text, std::size_t& at) {
    std::wstring result;
    for (++at; at < text.size(); ++at) {
        if (text[at] == L'"' && (at + 1 >= text.size() || text[at + 1] != L'"'))
            break;
        if (text[at] == L'"')
            ++at; // two stand for one
        result += text[at];
    }
    if (at >= text.size())
        throw Failure(L"A text that begins with \" also ends with it.");
    ++at;
    return result;
}

std::vector<Variant> elements(const std::wstring& text, std::size_t& at, int depth);

/// Rows of one length become a table of two dimensions.
Variant array_of(const std::vector<Variant>& items) {
    const bool table = !items.empty() && items.front().type() == (VT_ARRAY | VT_VARIANT);
    const auto rows = static_cast<ULONG>(items.size());
    SAFEARRAYBOUND bounds[] = {{rows, 0}, {0, 0}};
    if (table)
        bounds[1].cElements = Variant(items.front()).get()->parray->rgsabound[0].cElements;
    SAFEARRAY* const array = SafeArrayCreate(VT_VARIANT, table ? 2 : 1, bounds);
    Variant result;
    result.out()->vt = VT_ARRAY | VT_VARIANT;
    result.get()->parray = array;
    for (LONG row = 0; row < static_cast<LONG>(rows); ++row) {
        Variant item = items[static_cast<std::size_t>(row)];
        LONG place[] = {row, 0};
        if (!table) {
            check(SafeArrayPutElement(array, place, item.get()), L"Filling an array");
            continue;
        }
        if (item.type() != (VT_ARRAY | VT_VARIANT) || SafeArrayGetDim(item.get()->parray) != 1 ||
            item.get()->parray->rgsabound[0].cElements != bounds[1].cElements)
            throw Failure(L"The rows of a table have as many cells each, and are no tables themselves.");
        for (; place[1] < static_cast<LONG>(bounds[1].cElements); ++place[1]) {
            Variant cell;
            SafeArrayGetElement(item.get()->parray, &place[1], cell.out());
            check(SafeArrayPutElement(array, place, cell.get()), L"Filling an array");
        }
    }
    return result;
}

Variant element(const std::wstring& text, std::size_t& at, int depth) {
    if (text[at] == L'{')
        return array_of(elements(text, at, depth + 1));
    if (text[at] == L'"')
        return Variant(quoted(text, at));
    const std::size_t end = std::min(text.find_first_of(L",}", at), text.size());
    std::wstring word = text.substr(at, end - at);
    at = end;
    word.resize(word.find_last_not_of(L' ') + 1);
    return plain_value(word);
}

/// `at` stands on the opening brace, afterwards behind the closing one.
std::vector<Variant> elements(const std::wstring& text, std::size_t& at, int depth) {
    if (depth > deepest)
        throw Failure(L"An array has arrays in it " + std::to_wstring(deepest) + L" deep at most.");
    std::vector<Variant> items;
    ++at;
    for (skip_blanks(text, at); at < text.size() && text[at] != L'}'; skip_blanks(text, at)) {
        items.push_back(element(text, at, depth));
        skip_blanks(text, at);
        if (at < text.size() && text[at] == L',')
            ++at;
        else if (at < text.size() && text[at] != L'}')
            break;
        skip_blanks(text, at);
    }
    if (at >= text.size() || text[at] != L'}')
        throw Failure(L"An array is written {1, 2, 3} or {\"one\", \"two\"}.");
    ++at;
    return items;
}

Variant any_value(const std::wstring& text) {
    std::size_t at = 0;
    skip_blanks(text, at);
    if (at >= text.size() || (text[at] != L'{' && text[at] != L'"'))
        return plain_value(text);
    Variant value = element(text, at, 0);
    skip_blanks(text, at);
    if (at < text.size())
        throw Failure(L"After the value there is still " + text.substr(at));
    return value;
}

std::wstring table_text(SAFEARRAY* array, UINT dimension, std::vector<LONG>& place, LONG& shown);

std::wstring cell_text(SAFEARRAY* array, std::vector<LONG>& place, LONG& shown) {
    VARTYPE type = VT_EMPTY;
    SafeArrayGetVartype(array, &type);
    Variant cell;
    VARIANT* const out = cell.out();
    if (type != VT_VARIANT)
        out->vt = type;
    ++shown;
    SafeArrayGetElement(array, place.data(), type == VT_VARIANT ? static_cast<void*>(out) : &out->llVal);
    return text_of_value(*cell.get());
}

std::wstring table_text(SAFEARRAY* array, UINT dimension, std::vector<LONG>& place, LONG& shown) {
    if (dimension > SafeArrayGetDim(array))
        return cell_text(array, place, shown);
    LONG low = 0, high = -1;
    SafeArrayGetLBound(array, dimension, &low);
    SafeArrayGetUBound(array, dimension, &high);
    std::wstring list;
    for (LONG i = low; i <= high; ++i) {
        if (shown >= most_shown)
            return L'{' + list + L", ...}";
        place[dimension - 1] = i;
        list += (i == low ? L"" : L", ") + table_text(array, dimension + 1, place, shown);
    }
    return L'{' + list + L'}';
}

} // namespace

Variant value_of_text(const std::wstring& text, VARTYPE wanted) {
    if (wanted == VT_BSTR)
        return text.starts_with(L'"') ? any_value(text) : Variant(text);
    Variant value = any_value(text);
    constexpr VARTYPE anything[] = {VT_VARIANT, VT_DISPATCH, VT_UNKNOWN};
    for (const VARTYPE one : anything)
        if (wanted == one)
            return value;
    if (!value.change_to(wanted))
        throw Failure(L'"' + text + L"\" is not a value that can be passed there.");
    return value;
}

std::wstring text_of_value(const VARIANT& value) {
    if (value.vt & VT_ARRAY) {
        LONG shown = 0;
        std::vector<LONG> place(value.parray ? SafeArrayGetDim(value.parray) : 0);
        return value.parray ? table_text(value.parray, 1, place, shown) : L"{}";
    }
    if (value.vt == VT_BSTR)
        return L'"' + std::wstring(value.bstrVal ? value.bstrVal : L"", SysStringLen(value.bstrVal)) + L'"';
    if (value.vt == VT_EMPTY)
        return L"Empty";
    if (value.vt == VT_DISPATCH || value.vt == VT_UNKNOWN)
        return value.punkVal ? L"(object)" : L"Nothing";
    Variant text(value);
    return text.change_to(VT_BSTR) ? text.text() : L"(unknown)";
}

} // namespace vellora::samples
