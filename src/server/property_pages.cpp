#include "server/property_pages.h"

#include "control/state.h"

namespace vellora::server {

namespace {

// Properties by their identifiers (see VelloraCTL.idl). Those that only act in a running program, and those that are
// objects, for which every design tool has windows of its own, are left out.
constexpr DISPID field_properties[] = {
    DISPID_VALUE,   // Text
    511,            // Alignment
    503,            // MaxLength
    512,            // LeftMargin
    513,            // RightMargin
    501,            // AutoComplete
    502,            // Locked
    DISPID_ENABLED,
    111,            // AutoHeight
};
constexpr DISPID list_properties[] = {
    411, // DropDownHeight
    415, // DropDownWidthOffset
    414, // DropDownAlignment
    232, // SortOrder
    233, // SortColumn
    231, // Sorted
    221, // CheckBoxes
    209, // ShowItemToolTips
    416, // AllowResize
};
constexpr DISPID column_properties[] = {
    301, // Columns
    212, // TextColumn
    311, // AutoSize
    306, // HideColumnHeaders
    322, // AllowColumnReorder
};
constexpr DISPID numbered_column_properties[] = {
    302, // ColumnHeader
    324, // HeaderIcon
};
constexpr DISPID look_properties[] = {
    DISPID_BACKCOLOR,
    DISPID_FORECOLOR,
    412, // DropDownBackColor
    413, // DropDownForeColor
    122, // ButtonBackColor
    121, // ButtonForeColor
    123, // ButtonStyle
    124, // GridLines
};

constexpr com::PageClass pages[] = {
    {{0xE572D05B, 0xB153, 0x436A, {0x96, 0xC4, 0x97, 0x4D, 0x31, 0x33, 0xB9, 0xD0}}, L"Field", field_properties},
    {{0x48BFA513, 0x5FAF, 0x4081, {0xBB, 0x71, 0xAD, 0x84, 0x50, 0xFB, 0x67, 0xE8}}, L"List", list_properties},
    {{0x909F878A, 0x2EC2, 0x4027, {0xA1, 0x96, 0x77, 0x75, 0x3D, 0xC0, 0xA4, 0x8E}},
     L"Columns",
     column_properties,
     numbered_column_properties,
     column_properties[0],
     maximum_columns,
     L"Column"},
    {{0x29E50C82, 0xD779, 0x4A3A, {0xAC, 0x99, 0x8F, 0x56, 0x57, 0xC0, 0xE0, 0x31}}, L"Looks", look_properties},
};

} // namespace

std::span<const com::PageClass> property_pages() noexcept { return pages; }

} // namespace vellora::server
