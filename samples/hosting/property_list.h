// Properties as a property window lists them, whoever has them: a control, or the form that it stands on.
#pragma once

#include <string>
#include <vector>
#include <windows.h>

#include <oaidl.h>

namespace vellora::samples {

/// What the value of a property is to the person who edits it.
enum class PropertyKind { plain, color, font, picture };

struct Property {
    DISPID id;
    std::wstring name;
    std::wstring category;
    PropertyKind kind;
    bool writable;
};

class PropertyList {
public:
    PropertyList() = default;
    PropertyList(const PropertyList&) = delete;
    PropertyList& operator=(const PropertyList&) = delete;
    virtual ~PropertyList() = default;

    /// In the order a property window shows them: those of one category stand together.
    virtual const std::vector<Property>& properties() const = 0;
    /// The value as the property window shows it.
    virtual std::wstring text(const Property& property) const = 0;
    /// The values to choose from; empty where there are too many to list.
    virtual std::vector<std::wstring> choices(const Property& property) const = 0;
    /// Sets one of the choices, or what the user typed. Throws a Failure in the owner's words when it is refused.
    virtual void set(const Property& property, const std::wstring& text) = 0;
};

} // namespace vellora::samples
