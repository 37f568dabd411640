#include "com/categorize_properties.h"

#include "com/control_host.h"

namespace vellora::com {

PropertyCategories::PropertyCategories(ControlHost& host) : Delegating(host.controlling()), host_(host) {}

STDMETHODIMP PropertyCategories::MapPropertyToCategory(DISPID property, int* category) noexcept {
    return guard([&] {
        need(category);
        *category = 0;
        const std::optional<PropertyCategory> found = host_.client().category(property);
        if (!found)
            throw ComFailure(E_FAIL);
        *category = static_cast<int>(*found);
    });
}

STDMETHODIMP PropertyCategories::GetCategoryName(int, LCID, BSTR* name) noexcept {
    return guard([&] {
        need(name);
        *name = nullptr;
        return S_FALSE;
    });
}

} // namespace vellora::com
