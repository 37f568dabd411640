// The properties of any control, as a designer's property window lists them. Everything is asked of the control: the
// names of its type information, the group of each property, the values there are to choose from.
#pragma once

#include "property_list.h"

#include <ocidl.h>
#include <wrl/client.h>

namespace vellora::samples {

class PropertyTable final : public PropertyList {
public:
    /// Throws a Failure when the control does not describe itself.
    explicit PropertyTable(IUnknown* control);

    /// Those a designer shows, by category and name.
    const std::vector<Property>& properties() const noexcept override { return properties_; }
    /// Throws a Failure when there is none of the name.
    const Property& find(const std::wstring& name) const;

    std::wstring text(const Property& property) const override;
    std::vector<std::wstring> choices(const Property& property) const override;
    /// Throws a Refusal when the control says no.
    void set(const Property& property, const std::wstring& text) override;

private:
    void read_properties();

    Microsoft::WRL::ComPtr<IDispatch> control_;
    Microsoft::WRL::ComPtr<IPerPropertyBrowsing> browsing_; // null for controls without it
    std::vector<Property> properties_;
};

} // namespace vellora::samples
