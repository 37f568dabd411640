// The property window: a list of the properties with their values, and below it a field for the value of the chosen
// one, with the values to choose from.
#pragma once

#include "hosting/property_table.h"

#include <string>
#include <windows.h>

namespace vellora::samples {

class PropertyWindow {
public:
    /// Fills the place in `form`, in pixels. The list and the field notify with the two identifiers.
    PropertyWindow(HWND form, const RECT& place, int list_id, int field_id, HFONT font);

    /// Lists the properties of another control; null for none.
    void show(const PropertyTable* table);
    /// Reads all values again.
    void refresh() const;
    void choose(const std::wstring& property) const;
    /// The chosen property; null when there is none.
    const Property* chosen() const;
    /// Offers the value of the chosen property for editing.
    void offer_value() const;
    /// What stands in the field.
    std::wstring entered() const;
    void enter(const std::wstring& text) const;
    /// The value that the list shows for a property.
    std::wstring shown_value(const std::wstring& property) const;

private:
    int row_of(const std::wstring& property) const;

    HWND list_;
    HWND field_;
    const PropertyTable* table_ = nullptr;
};

} // namespace vellora::samples
