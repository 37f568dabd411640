// What the property grid lists for the chosen thing: of a control its name and place on the form, then what it says of
// itself; of the form its name, caption and size.
#pragma once

#include "form_surface.h"
#include "hosting/property_table.h"

#include <memory>

namespace vellora::samples {

/// A property that the form has, or keeps for one of its controls.
struct FormProperty {
    const wchar_t* name;
    std::wstring (*text)(const FormSurface& surface, const PlacedControl* control);
    void (*set)(FormSurface& surface, PlacedControl* control, const std::wstring& text);
};

class ShownProperties final : public PropertyList {
public:
    /// Of the form's chosen control, or of the form when there is none. As long as that is chosen.
    explicit ShownProperties(FormSurface& surface);

    const std::vector<Property>& properties() const override { return properties_; }
    std::wstring text(const Property& property) const override;
    std::vector<std::wstring> choices(const Property& property) const override;
    void set(const Property& property, const std::wstring& text) override;

private:
    const FormProperty* of_form(const Property& property) const;

    FormSurface& surface_;
    PlacedControl* control_;
    std::unique_ptr<PropertyTable> table_; // null for the form, and for controls that do not describe themselves
    std::vector<Property> properties_;
};

} // namespace vellora::samples
