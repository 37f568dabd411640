#include "property_category.h"

#include "bstr.h"

namespace vellora::samples {

namespace {

constexpr IID categorize_properties_id = {0x4D07FC10, 0xF931, 0x11CE, {0xB0, 0x01, 0x00, 0xAA, 0x00, 0x68, 0x84, 0xE5}};

// From -2 downwards.
constexpr const wchar_t* standard_names[] = {L"Misc", L"Font", L"Position", L"Appearance", L"Behavior",
                                             L"Data", L"List", L"Text",     L"Scale",      L"DDE"};
constexpr int first_standard = -2;

} // namespace

PropertyCategories::PropertyCategories(IUnknown* control) {
    control->QueryInterface(categorize_properties_id, reinterpret_cast<void**>(control_.GetAddressOf()));
}

std::wstring PropertyCategories::name_for(DISPID property) const {
    int category = first_standard;
    if (!control_ || FAILED(control_->MapPropertyToCategory(property, &category)))
        return standard_names[0];
    const int index = first_standard - category;
    if (index >= 0 && index < static_cast<int>(ARRAYSIZE(standard_names)))
        return standard_names[index];
    Bstr name;
    return control_->GetCategoryName(category, LOCALE_USER_DEFAULT, name.out()) == S_OK ? name.text()
                                                                                        : standard_names[0];
}

} // namespace vellora::samples
