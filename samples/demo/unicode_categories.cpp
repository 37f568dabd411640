#include "unicode_categories.h"

namespace vellora::samples {

namespace {

struct Category {
    std::string_view code;
    const wchar_t* name;
};

constexpr Category categories[] = {
    {"Lu", L"Letter, uppercase"},
    {"Ll", L"Letter, lowercase"},
    {"Lt", L"Letter, titlecase"},
    {"Lm", L"Letter, modifier"},
    {"Lo", L"Letter, other"},
    {"Mn", L"Mark, nonspacing"},
    {"Mc", L"Mark, spacing combining"},
    {"Me", L"Mark, enclosing"},
    {"Nd", L"Number, decimal digit"},
    {"Nl", L"Number, letter"},
    {"No", L"Number, other"},
    {"Pc", L"Punctuation, connector"},
    {"Pd", L"Punctuation, dash"},
    {"Ps", L"Punctuation, open"},
    {"Pe", L"Punctuation, close"},
    {"Pi", L"Punctuation, initial quote"},
    {"Pf", L"Punctuation, final quote"},
    {"Po", L"Punctuation, other"},
    {"Sm", L"Symbol, math"},
    {"Sc", L"Symbol, currency"},
    {"Sk", L"Symbol, modifier"},
    {"So", L"Symbol, other"},
    {"Zs", L"Separator, space"},
    {"Zl", L"Separator, line"},
    {"Zp", L"Separator, paragraph"},
    {"Cc", L"Other, control"},
    {"Cf", L"Other, format"},
    {"Cs", L"Other, surrogate"},
    {"Co", L"Other, private use"},
};

} // namespace

std::wstring category_name(std::string_view code) {
    for (const Category& category : categories)
        if (category.code == code)
            return category.name;
    return std::wstring(code.begin(), code.end());
}

} // namespace vellora::samples
