#include "shown_properties.h"

#include "form_units.h"
#include "hosting/failure.h"

#include <cwchar>
#include <span>

namespace vellora::samples {

namespace {

// Far from any number a control may use.
constexpr DISPID first_id = static_cast<DISPID>(0x80010100);

std::int32_t number(const std::wstring& text) {
    wchar_t* end = nullptr;
    const double value = std::wcstod(text.c_str(), &end);
    if (text.empty() || *end != L'\0' || !(value >= -most_twips && value <= most_twips))
        throw Failure(L'"' + text + L"\" is no number of twips; an inch has 1440.");
    return static_cast<std::int32_t>(value);
}

template <std::int32_t FormControl::*edge>
std::wstring edge_text(const FormSurface&, const PlacedControl* control) {
    return std::to_wstring(control->form().*edge);
}

template <std::int32_t FormControl::*edge>
void set_edge(FormSurface& surface, PlacedControl* control, const std::wstring& text) {
    const std::int32_t value = number(text);
    if ((edge == &FormControl::width || edge == &FormControl::height) && value < 1)
        throw Failure(L"A control has a width and a height of 1 at least.");
    control->move_to(edge, value);
    surface.place_changed();
}

constexpr FormProperty control_properties[] = {
    {L"Name", [](const FormSurface&, const PlacedControl* control) { return control->name(); },
     [](FormSurface& surface, PlacedControl* control, const std::wstring& text) { surface.rename(*control, text); }},
    {L"Left", edge_text<&FormControl::left>, set_edge<&FormControl::left>},
    {L"Top", edge_text<&FormControl::top>, set_edge<&FormControl::top>},
    {L"Width", edge_text<&FormControl::width>, set_edge<&FormControl::width>},
    {L"Height", edge_text<&FormControl::height>, set_edge<&FormControl::height>},
    {L"TabIndex", edge_text<&FormControl::tab_index>,
     [](FormSurface&, PlacedControl* control, const std::wstring& text) { control->set_tab_index(number(text)); }},
};

constexpr FormProperty form_properties[] = {
    {L"Name", [](const FormSurface& surface, const PlacedControl*) { return surface.name(); },
     [](FormSurface& surface, PlacedControl*, const std::wstring& text) { surface.set_name(text); }},
    {L"Caption", [](const FormSurface& surface, const PlacedControl*) { return surface.caption(); },
     [](FormSurface& surface, PlacedControl*, const std::wstring& text) { surface.set_caption(text); }},
    {L"ClientWidth",
     [](const FormSurface& surface, const PlacedControl*) { return std::to_wstring(surface.size_in_twips().cx); },
     [](FormSurface& surface, PlacedControl*, const std::wstring& text) {
         surface.resize({number(text), surface.size_in_twips().cy});
     }},
    {L"ClientHeight",
     [](const FormSurface& surface, const PlacedControl*) { return std::to_wstring(surface.size_in_twips().cy); },
     [](FormSurface& surface, PlacedControl*, const std::wstring& text) {
         surface.resize({surface.size_in_twips().cx, number(text)});
     }},
};

std::span<const FormProperty> own_of(const PlacedControl* control) {
    return control ? std::span<const FormProperty>(control_properties) : form_properties;
}

std::unique_ptr<PropertyTable> table_of(const PlacedControl* control) {
    try {
        return control && control->control() ? std::make_unique<PropertyTable>(control->control()) : nullptr;
    } catch (const Failure&) {
        return nullptr;
    }
}

} // namespace

ShownProperties::ShownProperties(FormSurface& surface)
    : surface_(surface), control_(surface.chosen()), table_(table_of(control_)) {
    DISPID id = first_id;
    for (const FormProperty& property : own_of(control_))
        properties_.push_back(
            {id++, property.name, control_ ? L"On the form" : L"Form", PropertyKind::plain, !surface.running()});
    if (table_)
        properties_.insert(properties_.end(), table_->properties().begin(), table_->properties().end());
}

const FormProperty* ShownProperties::of_form(const Property& property) const {
    const auto own = own_of(control_);
    const std::uint32_t index = static_cast<std::uint32_t>(property.id) - static_cast<std::uint32_t>(first_id);
    return index < own.size() ? &own[index] : nullptr;
}

std::wstring ShownProperties::text(const Property& property) const {
    if (control_ != surface_.chosen())
        return {}; // it may be gone
    const FormProperty* const own = of_form(property);
    return own ? own->text(surface_, control_) : table_->text(property);
}

std::vector<std::wstring> ShownProperties::choices(const Property& property) const {
    return of_form(property) ? std::vector<std::wstring>() : table_->choices(property);
}

void ShownProperties::set(const Property& property, const std::wstring& text) {
    if (control_ != surface_.chosen())
        throw Failure(L"Another control is the chosen one now.");
    if (!property.writable)
        throw Failure(property.name + L" can only be read" + (of_form(property) ? L" while the form runs." : L"."));
    if (const FormProperty* const own = of_form(property))
        own->set(surface_, control_, text);
    else
        table_->set(property, text);
    if (property.kind == PropertyKind::font)
        control_->settle();
    surface_.place_changed();
}

} // namespace vellora::samples
