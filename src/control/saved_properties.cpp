#include "control/saved_properties.h"

#include "runtime/decimal.h"
#include "runtime/system_colors.h"

#include <algorithm>
#include <array>
#include <vector>

namespace vellora {

namespace {

// Colours travel as Longs.
constexpr std::int32_t as_long(OleColor color) { return static_cast<std::int32_t>(color); }

template <auto Value> SavedValue fixed(const ControlCore&) { return Value; }
template <OleColor Color> SavedValue fixed_color(const ControlCore&) { return as_long(Color); }
SavedValue single_0(const ControlCore&) { return 0.0F; }
SavedValue single_8(const ControlCore&) { return 8.0F; }
SavedValue no_text(const ControlCore&) { return std::u16string(); }
SavedValue no_picture(const ControlCore&) { return PictureRef(); }
SavedValue no_image_list(const ControlCore&) { return ImageListRef(); }
SavedValue ambient_font(const ControlCore& core) { return core.site.ambient_font(); }

template <auto Field> SavedValue field(const ControlCore& core) { return core.state.*Field; }
template <auto Field> SavedValue color_field(const ControlCore& core) { return as_long(core.state.*Field); }
// A control that was never set up has none, and saves none.
SavedValue columns_in_use(const ControlCore& core) {
    return std::max(core.state.miColumns, std::int16_t{1});
}
SavedValue text(const ControlCore& core) { return core.live_text_box().text(); }
SavedValue text_fore_color(const ControlCore& core) { return as_long(core.live_text_box().fore_color()); }
SavedValue text_back_color(const ControlCore& core) { return as_long(core.live_text_box().back_color()); }
SavedValue picture(const ControlCore& core) { return core.parts.ListView1.picture(); }

// The list view keeps it; a column another program took away has none.
SavedValue header_icon(const ControlCore& core, std::size_t slot) {
    const auto column = static_cast<std::int32_t>(slot) + 1;
    const ListView& list = core.parts.ListView1;
    return column <= list.header_count() ? list.header_tag(column) : std::u16string();
}

using S = ControlState;
constexpr auto no = fixed<false>;
constexpr auto yes = fixed<true>;
constexpr auto long_0 = fixed<std::int32_t{0}>;
constexpr auto integer_1 = fixed<std::int16_t{1}>;

const std::array before_columns{
    SavedProperty{u"Text", no_text, text},
    SavedProperty{u"Columns", integer_1, columns_in_use},
};

// The drop-down's colours are saved from the text field's, and BackColor a second time from there; the second value
// is the one that stays. Forms saved long ago depend on both.
const std::array after_columns{
    SavedProperty{u"BackColor", fixed_color<system_color::window>, color_field<&S::mlBackColor>},
    SavedProperty{u"DropDownHeight", single_8, field<&S::msngDropDownHeight>},
    SavedProperty{u"ListIndex", fixed<std::int32_t{-1}>, field<&S::mlListIndex>},
    SavedProperty{u"HideColumnHeaders", no, field<&S::mbHideColumnHeaders>},
    SavedProperty{u"Sorted", no, field<&S::mbSorted>},
    SavedProperty{u"SortOrder", long_0, field<&S::mlSortOrder>},
    SavedProperty{u"TextColumn", integer_1, field<&S::miTextColumn>},
    SavedProperty{u"SortColumn", integer_1, field<&S::miSortColumn>},
    SavedProperty{u"Picture", no_picture, picture},
    SavedProperty{u"AutoComplete", no, field<&S::mbAutoComplete>},
    SavedProperty{u"Enabled", yes, field<&S::mbEnabled>},
    SavedProperty{u"Locked", no, field<&S::mbLocked>},
    SavedProperty{u"AutoHeight", yes, field<&S::mbAutoHeight>},
    SavedProperty{u"Font", ambient_font, field<&S::moFont>},
    SavedProperty{u"DropDownBackColor", fixed_color<system_color::window>, text_back_color},
    SavedProperty{u"DropDownForeColor", fixed_color<system_color::window_text>, text_fore_color},
    SavedProperty{u"DropDownAlignment", long_0, field<&S::mlDropDownAlignment>},
    SavedProperty{u"DropDownWidthOffset", single_0, field<&S::msngDropDownWidthOffset>},
    SavedProperty{u"AutoSize", long_0, field<&S::mlAutoSize>},
    SavedProperty{u"GridLines", no, field<&S::mbGridLines>},
    SavedProperty{u"ButtonStyle", long_0, field<&S::mlButtonStyle>},
    SavedProperty{u"ButtonForeColor", fixed_color<system_color::button_text>, color_field<&S::mlButtonForeColor>},
    SavedProperty{u"ButtonBackColor", fixed_color<system_color::button_face>, color_field<&S::mlButtonBackColor>},
    SavedProperty{u"CheckBoxes", no, field<&S::mbCheckBoxes>},
    SavedProperty{u"AllowResize", no, field<&S::mbAllowResize>},
    SavedProperty{u"AllowColumnReorder", no, field<&S::mbAllowColumnReorder>},
    SavedProperty{u"ShowItemToolTips", no, field<&S::mbShowItemToolTips>},
    SavedProperty{u"ForeColor", fixed_color<system_color::window_text>, text_fore_color},
    SavedProperty{u"BackColor", fixed_color<system_color::window>, text_back_color},
    SavedProperty{u"Alignment", long_0, field<&S::mlAlignment>},
    SavedProperty{u"MaxLength", long_0, field<&S::mlMaxLength>},
    SavedProperty{u"LeftMargin", long_0, field<&S::mlLeftMargin>},
    SavedProperty{u"RightMargin", long_0, field<&S::mlRightMargin>},
    SavedProperty{u"HeaderIcons", no_image_list, field<&S::moHeaderIcons>},
};

const std::array columns{
    SavedColumnProperty{u"ColumnHeader", std::u16string(),
                        [](const ControlCore& core, std::size_t slot) -> SavedValue {
                            return core.state.masColumnHeader[slot];
                        }},
    SavedColumnProperty{u"ColumnWidth", automatic_width,
                        [](const ControlCore& core, std::size_t slot) -> SavedValue {
                            return core.state.masngColumnWidth[slot];
                        }},
    SavedColumnProperty{u"HeaderIcon", std::u16string(), header_icon},
    SavedColumnProperty{u"ColumnHidden", false,
                        [](const ControlCore& core, std::size_t slot) -> SavedValue {
                            return core.state.mabColumnHidden[slot];
                        }},
    SavedColumnProperty{u"ColumnLocked", false,
                        [](const ControlCore& core, std::size_t slot) -> SavedValue {
                            return core.state.mabColumnLocked[slot];
                        }},
};

} // namespace

std::span<const SavedProperty> properties_before_columns() { return before_columns; }
std::span<const SavedColumnProperty> column_properties() { return columns; }
std::span<const SavedProperty> properties_after_columns() { return after_columns; }

SavedValue default_of(const ControlCore& core, std::u16string_view key) {
    const auto has_key = [key](const SavedProperty& property) { return property.key == key; };
    const auto before = std::ranges::find_if(before_columns, has_key);
    if (before != before_columns.end()) {
        return before->default_value(core);
    }
    return std::ranges::find_if(after_columns, has_key)->default_value(core);
}

SavedValue default_of_column(std::u16string_view key) {
    return std::ranges::find_if(columns, [key](const SavedColumnProperty& property) {
               return property.key == key;
           })->default_value;
}

std::u16string column_key(std::u16string_view key, std::int32_t column) {
    return std::u16string(key) + to_decimal(column);
}

} // namespace vellora
