// IPerPropertyBrowsing: the values a property list offers for a property that is an enumeration, read from
// the type information.
#pragma once

#include "com/delegating.h"
#include "com/enumeration.h"

namespace vellora::com {

class ControlHost;

class PropertyBrowsing final : public Delegating<IPerPropertyBrowsing> {
public:
    explicit PropertyBrowsing(ControlHost& host);

    STDMETHODIMP GetDisplayString(DISPID property, BSTR* text) noexcept override;
    STDMETHODIMP MapPropertyToPage(DISPID property, CLSID* page) noexcept override;
    STDMETHODIMP GetPredefinedStrings(DISPID property, CALPOLESTR* texts, CADWORD* cookies) noexcept override;
    STDMETHODIMP GetPredefinedValue(DISPID property, DWORD cookie, VARIANT* value) noexcept override;

private:
    std::vector<Choice> choices(DISPID property) const;
    std::int32_t current_value(DISPID property) const;

    ControlHost& host_;
};

} // namespace vellora::com
