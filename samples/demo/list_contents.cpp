#include "list_contents.h"

#include "hosting/bstr.h"
#include "hosting/failure.h"
#include "hosting/text_array.h"

#include <algorithm>

namespace vellora::samples {

namespace {

constexpr float twips_per_inch = 1440;
constexpr long yes = -1;

void set_columns(_Vellora& control, const TextRow& captions) {
    check(control.put_Columns(static_cast<short>(captions.size())), L"Setting the number of columns");
    short number = 1;
    for (const std::wstring& caption : captions)
        check(control.put_ColumnHeader(number++, Bstr(caption).get()), L"Naming a column");
}

/// Row by row, as most programs do. Members take the number of a row as a 16-bit Integer: more rows than it
/// counts are still shown, but a program could not ask for their texts.
void add_rows(_Vellora& control, const TextRows& rows) {
    constexpr std::size_t most = 32767;
    constexpr short at_the_end = -1;
    for (std::size_t i = 0; i < std::min(most, rows.size()); ++i)
        check(control.AddItem(TextArray(rows[i]).get(), at_the_end), L"Adding a row");
}

/// All rows in one call.
void write_rows(_Vellora& control, const TextRows& rows) {
    constexpr short rows_first = -3;
    if (!rows.empty())
        check(control.put_List(0, rows_first, TextArray(rows).get()), L"Writing the rows");
}

void clear_text(_Vellora& control) {
    // A new control shows its own name.
    check(control.put_Text(Bstr(L"").get()), L"Clearing the text");
}

void choose(_Vellora& control, long row) {
    check(control.put_ListIndex(row), L"Choosing a row");
}

void set_up_time_zones(_Vellora& control, const ListData& data) {
    constexpr short zone_column = 2;
    set_columns(control, {L"Country", L"Zone", L"Coordinates", L"Comment"});
    check(control.put_TextColumn(zone_column), L"Choosing the text column");
    check(control.put_AutoSize(vlContents), L"Asking for automatic widths");
    check(control.put_AutoComplete(VARIANT_TRUE), L"Asking for completion");
    check(control.put_DropDownHeight(12), L"Setting the height of the list");
    add_rows(control, data.time_zones);
    clear_text(control);
}

void set_up_character_columns(_Vellora& control) {
    constexpr short name_column = 3;
    constexpr float inches[] = {0.8f, 0.9f, 3.9f, 1.6f};
    set_columns(control, {L"Character", L"Code point", L"Name", L"Category"});
    for (short column = 1; column <= 4; ++column)
        check(control.put_ColumnWidth(column, inches[column - 1] * twips_per_inch),
              L"Setting a column's width");
    check(control.put_TextColumn(name_column), L"Choosing the text column");
    check(control.put_DropDownAlignment(vlDDRight), L"Aligning the list");
    check(control.put_DropDownHeight(12), L"Setting the height of the list");
}

void set_up_some_characters(_Vellora& control, const ListData& data) {
    set_up_character_columns(control);
    check(control.put_GridLines(VARIANT_TRUE), L"Asking for grid lines");
    add_rows(control, data.characters);
    clear_text(control);
}

void set_up_all_characters(_Vellora& control, const ListData& data) {
    set_up_character_columns(control);
    check(control.put_AllowResize(VARIANT_TRUE), L"Asking for the grip");
    write_rows(control, data.characters);
    clear_text(control);
}

void set_up_paper_sizes(_Vellora& control, const ListData&) {
    set_columns(control, {L"", L""});
    check(control.put_AutoSize(vlIncludeHeaders), L"Asking for automatic widths");
    check(control.put_HideColumnHeaders(VARIANT_TRUE), L"Hiding the headers");
    add_rows(control, {{L"A3", L"297 × 420 mm"},
                       {L"A4", L"210 × 297 mm"},
                       {L"A5", L"148 × 210 mm"},
                       {L"A6", L"105 × 148 mm"},
                       {L"Legal", L"216 × 356 mm"},
                       {L"Letter", L"216 × 279 mm"}});
    choose(control, 1);
}

void set_up_disabled(_Vellora& control, const ListData&) {
    add_rows(control, {{L"Nobody can choose this"}, {L"Nor this"}});
    choose(control, 0);
    check(control.put_Enabled(VARIANT_FALSE), L"Disabling the control");
}

void set_up_right_to_left(_Vellora& control, const ListData&) {
    constexpr long right = 1;
    set_columns(control, {L"Arabic", L"Persian"});
    check(control.put_AutoSize(vlIncludeHeaders), L"Asking for automatic widths");
    check(control.put_Alignment(right), L"Aligning the text");
    add_rows(control, {{L"الأحد", L"یکشنبه"},
                       {L"الاثنين", L"دوشنبه"},
                       {L"الثلاثاء", L"سه شنبه"},
                       {L"الأربعاء", L"چهارشنبه"},
                       {L"الخميس", L"پنجشنبه"},
                       {L"الجمعة", L"جمعه"},
                       {L"السبت", L"شنبه"}});
    choose(control, 0);
}

void set_up_check_boxes(_Vellora& control, const ListData&) {
    set_columns(control, {L"Instrument"});
    check(control.put_AutoSize(vlIncludeHeaders), L"Asking for automatic widths");
    add_rows(control, {{L"Violin"}, {L"Viola"}, {L"Cello"}, {L"Double bass"}, {L"Harp"}});
    check(control.put_Checked(1, VARIANT_TRUE), L"Checking a row");
    clear_text(control);
}

} // namespace

const std::vector<BoxDefinition>& box_definitions() {
    static const std::vector<BoxDefinition> definitions{
        {L"Time zones", {}, set_up_time_zones, true},
        {L"Unicode characters", {}, set_up_some_characters, true},
        {L"Paper sizes", {}, set_up_paper_sizes, false},
        {L"All Unicode characters", {}, set_up_all_characters, true},
        {L"Disabled", {}, set_up_disabled, false},
        {L"Right to left", {}, set_up_right_to_left, false},
        {L"Check boxes", {{L"CheckBoxes", yes}, {L"ButtonStyle", vlToggle}}, set_up_check_boxes, false},
    };
    return definitions;
}

} // namespace vellora::samples
