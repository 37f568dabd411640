#include "first_form.h"

#include "hosting/bstr.h"
#include "hosting/failure.h"
#include "hosting/text_array.h"

namespace vellora::samples {

namespace {

const TextRows& samples() {
    static const TextRows rows = {
        {L"A3", L"297", L"420"},        {L"A4", L"210", L"297"},      {L"A5", L"148", L"210"},
        {L"A6", L"105", L"148"},        {L"B4", L"250", L"353"},      {L"B5", L"176", L"250"},
        {L"Executive", L"184", L"267"}, {L"Legal", L"216", L"356"},   {L"Letter", L"216", L"279"},
        {L"Statement", L"140", L"216"}, {L"Tabloid", L"279", L"432"},
    };
    return rows;
}

FormSetting setting(const char16_t* name, FormValue value) {
    return {name, std::move(value)};
}

} // namespace

Form empty_form() {
    Form form;
    form.name = u"Form1";
    form.caption = u"Form1";
    form.client_width = 4680;
    form.client_height = 3195;
    return form;
}

Form first_form() {
    Form form = empty_form();
    form.caption = u"Paper sizes";
    FormControl box;
    box.program_id = u"VelloraCTL.Vellora";
    box.name = u"Vellora1";
    box.left = 240;
    box.top = 240;
    box.width = 3000;
    box.height = 315;
    box.settings.settings = {
        setting(u"Text", u"Choose a paper"),
        setting(u"Columns", 3),
        setting(u"ColumnHeader1", u"Paper"),
        setting(u"ColumnHeader2", u"Width (mm)"),
        setting(u"ColumnHeader3", u"Height (mm)"),
        setting(u"ColumnWidth1", 1320),
        setting(u"ColumnWidth2", 1200),
        setting(u"ColumnWidth3", 1260),
        setting(u"AutoComplete", -1),
        setting(u"AllowResize", -1),
        setting(u"DropDownWidthOffset", 1200),
        setting(u"GridLines", -1),
    };
    form.controls.push_back(box);
    return form;
}

void fill_with_samples(_Vellora& control) {
    short columns = 0;
    check(control.get_Columns(&columns), L"Asking for the number of columns");
    for (TextRow row : samples()) {
        row.resize(static_cast<std::size_t>(columns));
        check(control.AddItem(TextArray(row).get(), -1), L"Adding a row");
    }
}

} // namespace vellora::samples
