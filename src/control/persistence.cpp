#include "control/persistence.h"

#include "columns/column_set.h"
#include "columns/header_icons.h"
#include "control/appearance.h"
#include "control/control_object.h"
#include "control/saved_properties.h"
#include "dropdown/placement.h"
#include "items/check_boxes.h"
#include "items/selection.h"
#include "runtime/checked.h"
#include "textfield/text_properties.h"

#include <algorithm>

namespace vellora {

namespace {

// A font counts by its look: the container's is another object every time it is asked for.
bool same(const SavedValue& value, const SavedValue& default_value) {
    const auto font = std::get_if<FontRef>(&value);
    const auto default_font = std::get_if<FontRef>(&default_value);
    if (font && *font && default_font && *default_font) {
        return (*font)->looks_like(**default_font);
    }
    return value == default_value;
}

void write(PropertyBag& bag, std::u16string_view key, const SavedValue& value, const SavedValue& default_value) {
    if (!same(value, default_value)) {
        bag.write(key, value);
    }
}

void write_all(PropertyBag& bag, const ControlCore& core, std::span<const SavedProperty> properties) {
    for (const SavedProperty& property : properties) {
        write(bag, property.key, property.value(core), property.default_value(core));
    }
}

template <typename Type> Type read(PropertyBag& bag, const ControlCore& core, std::u16string_view key) {
    return std::get<Type>(bag.read(key, default_of(core, key)));
}

template <typename Type>
Type read_column(PropertyBag& bag, std::u16string_view key, std::int32_t column) {
    return std::get<Type>(bag.read(column_key(key, column), default_of_column(key)));
}

OleColor read_color(PropertyBag& bag, const ControlCore& core, std::u16string_view key) {
    return static_cast<OleColor>(read<std::int32_t>(bag, core, key));
}

} // namespace

Persistence::Persistence(ControlCore& core, const Setters& setters) : core_(core), setters_(setters) {}

void Persistence::WriteProperties(PropertyBag& bag) {
    setters_.columns.ensure_headers();
    write_all(bag, core_, properties_before_columns());
    for (std::int32_t column = 1; column <= core_.state.miColumns; ++column) {
        // A load that failed may have left more columns than there can be.
        const std::size_t slot = checked_slot(column, maximum_columns);
        for (const SavedColumnProperty& property : column_properties()) {
            write(bag, column_key(property.key, column), property.value(core_, slot), property.default_value);
        }
    }
    write_all(bag, core_, properties_after_columns());
}

// The order matters throughout: the live text box comes first, and setters rely on fields read before them.
void Persistence::ReadProperties(PropertyBag& bag) {
    core_.state.mbLoadingProperties = true;
    // Of a control that is loaded again; a new one has neither.
    core_.parts.ListView1.rows().clear();
    core_.parts.ListView1.clear_headers();
    setters_.text_properties.put_Alignment(read<std::int32_t>(bag, core_, u"Alignment"));
    read_fields(bag);
    read_text_look(bag);
    read_columns(bag);
    read_appearance(bag);
    read_text(bag);
    read_list_look(bag);
    hand_fields_to_list();
    core_.state.mbListDirty = false;
    core_.state.mbLoadingProperties = false;
}

void Persistence::read_fields(PropertyBag& bag) {
    ControlState& state = core_.state;
    state.msngDropDownHeight = read<float>(bag, core_, u"DropDownHeight");
    state.mbAutoHeight = read<bool>(bag, core_, u"AutoHeight");
    state.mbSorted = read<bool>(bag, core_, u"Sorted");
    state.mlSortOrder = read<std::int32_t>(bag, core_, u"SortOrder");
    state.miTextColumn = read<std::int16_t>(bag, core_, u"TextColumn");
    state.miSortColumn = read<std::int16_t>(bag, core_, u"SortColumn");
    state.mbAutoComplete = read<bool>(bag, core_, u"AutoComplete");
    state.mbAllowResize = read<bool>(bag, core_, u"AllowResize");
    state.mbAllowColumnReorder = read<bool>(bag, core_, u"AllowColumnReorder");
    show_as_enabled_so_far();
    state.mlDropDownAlignment = read<std::int32_t>(bag, core_, u"DropDownAlignment");
    state.msngDropDownWidthOffset = read<float>(bag, core_, u"DropDownWidthOffset");
    state.mbGridLines = read<bool>(bag, core_, u"GridLines");
    state.mlAutoSize = read<std::int32_t>(bag, core_, u"AutoSize");
    state.mbShowItemToolTips = read<bool>(bag, core_, u"ShowItemToolTips");
}

// Nothing has been enabled yet at this point; the control answers no click until it is whole.
void Persistence::show_as_enabled_so_far() {
    if (!core_.site.user_mode()) {
        return;
    }
    for (CheckButton* button : core_.parts.chkDropDown) {
        button->set_enabled(core_.state.mbEnabled);
    }
    core_.surface.set_enabled(core_.state.mbEnabled);
}

void Persistence::read_text_look(PropertyBag& bag) {
    TextBox& text_box = core_.live_text_box();
    text_box.set_fore_color(read_color(bag, core_, u"ForeColor"));
    text_box.set_back_color(read_color(bag, core_, u"BackColor"));
    text_box.set_enabled(true);
}

// Hidden and locked go straight into the arrays, as their setters do nothing in a designer or while loading.
void Persistence::read_columns(PropertyBag& bag) {
    ControlState& state = core_.state;
    setters_.header_icons.putref_Icons(read<ImageListRef>(bag, core_, u"HeaderIcons"));
    state.miColumns = read<std::int16_t>(bag, core_, u"Columns");
    for (std::int32_t column = 1; column <= state.miColumns; ++column) {
        const std::size_t slot = checked_slot(column, maximum_columns);
        state.masColumnHeader[slot] = read_column<std::u16string>(bag, u"ColumnHeader", column);
        state.masngColumnWidth[slot] = read_column<float>(bag, u"ColumnWidth", column);
        read_header_icon(bag, column);
        state.mabColumnHidden[slot] = read_column<bool>(bag, u"ColumnHidden", column);
        state.mabColumnLocked[slot] = read_column<bool>(bag, u"ColumnLocked", column);
    }
}

void Persistence::read_header_icon(PropertyBag& bag, std::int32_t column) {
    setters_.header_icons.put_HeaderIcon(to_integer(column),
                                         read_column<std::u16string>(bag, u"HeaderIcon", column));
}

void Persistence::read_appearance(PropertyBag& bag) {
    setters_.text_properties.put_Locked(read<bool>(bag, core_, u"Locked"));
    setters_.appearance.put_Enabled(read<bool>(bag, core_, u"Enabled"));
    setters_.appearance.put_BackColor(read_color(bag, core_, u"BackColor"));
    setters_.text_properties.put_MaxLength(read<std::int32_t>(bag, core_, u"MaxLength"));
    setters_.placement.put_DropDownBackColor(read_color(bag, core_, u"DropDownBackColor"));
    setters_.placement.put_DropDownForeColor(read_color(bag, core_, u"DropDownForeColor"));
    setters_.appearance.putref_Font(read<FontRef>(bag, core_, u"Font"));
    setters_.appearance.put_ButtonStyle(read<std::int32_t>(bag, core_, u"ButtonStyle"));
    setters_.appearance.put_ButtonForeColor(read_color(bag, core_, u"ButtonForeColor"));
    setters_.appearance.put_ButtonBackColor(read_color(bag, core_, u"ButtonBackColor"));
    setters_.check_boxes.put_CheckBoxes(read<bool>(bag, core_, u"CheckBoxes"));
    setters_.selection.put_ListIndex(read<std::int32_t>(bag, core_, u"ListIndex"));
}

void Persistence::read_text(PropertyBag& bag) {
    setters_.object.write_text_silently(read<std::u16string>(bag, core_, u"Text"));
}

void Persistence::read_list_look(PropertyBag& bag) {
    setters_.appearance.put_GridLines(read<bool>(bag, core_, u"GridLines"));
    setters_.appearance.putref_Picture(read<PictureRef>(bag, core_, u"Picture"));
    setters_.text_properties.put_LeftMargin(read<std::int32_t>(bag, core_, u"LeftMargin"));
    setters_.text_properties.put_RightMargin(read<std::int32_t>(bag, core_, u"RightMargin"));
    // A container that uses the control while it gives the settings may have had headers built from half of them.
    core_.parts.ListView1.clear_headers();
    setters_.columns.put_Columns(core_.state.miColumns);
    setters_.columns.put_HideColumnHeaders(read<bool>(bag, core_, u"HideColumnHeaders"));
    for (std::int32_t column = 1; column <= core_.state.miColumns; ++column) {
        read_header_icon(bag, column);
    }
}

// These fields were read without their setters; a saved form expects its list to act on them.
void Persistence::hand_fields_to_list() {
    ListView& list = core_.parts.ListView1;
    list.rows().set_sort_order(core_.state.mlSortOrder);
    list.rows().set_sort_column(std::max(core_.state.miSortColumn - 1, 0));
    list.rows().set_sorted(core_.state.mbSorted);
    list.set_allow_column_reorder(core_.state.mbAllowColumnReorder);
}

} // namespace vellora
