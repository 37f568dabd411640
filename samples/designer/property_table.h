// The properties of any control, as a designer's property window lists them. Everything is asked of the control: the
// names of its type information, the group of each property, the values there are to choose from.
#pragma once

#include <string>
#include <vector>
#include <windows.h>

#include <oaidl.h>
#include <ocidl.h>
#include <wrl/client.h>

namespace vellora::samples {

struct Property {
    DISPID id;
    std::wstring name;
    std::wstring category;
    bool is_color;
};

class PropertyTable {
public:
    /// Throws a Failure when the control does not describe itself.
    explicit PropertyTable(IUnknown* control);

    /// Those a designer shows, by category and name.
    const std::vector<Property>& properties() const noexcept { return properties_; }
    /// Throws a Failure when there is none of the name.
    const Property& find(const std::wstring& name) const;

    /// The value as the property window shows it.
    std::wstring text(const Property& property) const;
    /// The values to choose from; empty where there are too many to list.
    std::vector<std::wstring> choices(const Property& property) const;
    /// Sets one of the choices, or what the user typed. Throws a Failure in the control's words when it refuses.
    void set(const Property& property, const std::wstring& text) const;

private:
    void read_properties();
    void put(DISPID id, VARIANT* value) const;

    Microsoft::WRL::ComPtr<IDispatch> control_;
    Microsoft::WRL::ComPtr<IPerPropertyBrowsing> browsing_; // null for controls without it
    std::vector<Property> properties_;
};

} // namespace vellora::samples
