// Saving an instance with its form and loading it again.
#pragma once

#include "control/core.h"
#include "host/property_bag.h"

namespace vellora {

class Appearance;
class CheckBoxes;
class ColumnSet;
class ControlObject;
class HeaderIcons;
class Placement;
class Selection;
class TextProperties;

class Persistence {
public:
    struct Setters {
        ControlObject& object;
        Appearance& appearance;
        TextProperties& text_properties;
        ColumnSet& columns;
        HeaderIcons& header_icons;
        Placement& placement;
        CheckBoxes& check_boxes;
        Selection& selection;
    };
    Persistence(ControlCore& core, const Setters& setters);

    /// Writes what differs from its default; the state stays as it is.
    void WriteProperties(PropertyBag& bag);
    /// Fills an instance that was just created. An error ends it there: what was read before stays, and the instance
    /// counts as still loading.
    void ReadProperties(PropertyBag& bag);

private:
    void read_fields(PropertyBag& bag);
    void read_text_look(PropertyBag& bag);
    void read_columns(PropertyBag& bag);
    void read_header_icon(PropertyBag& bag, std::int32_t column);
    void read_appearance(PropertyBag& bag);
    void read_text(PropertyBag& bag);
    void read_list_look(PropertyBag& bag);
    void hand_fields_to_list();
    void show_as_enabled_so_far();

    ControlCore& core_;
    Setters setters_;
};

} // namespace vellora
