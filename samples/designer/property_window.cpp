#include "property_window.h"

#include "hosting/child_window.h"
#include "hosting/report_list.h"

namespace vellora::samples {

namespace {

HWND make(HWND form, const wchar_t* window_class, DWORD style, int id) {
    return CreateWindowExW(WS_EX_CLIENTEDGE, window_class, L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP | style, 0, 0, 0, 0,
                           form, reinterpret_cast<HMENU>(static_cast<LONG_PTR>(id)), GetModuleHandleW(nullptr),
                           nullptr);
}

enum Column { category_column, name_column, value_column };

} // namespace

PropertyWindow::PropertyWindow(HWND form, const RECT& place, int list_id, int field_id, HFONT font)
    : list_(make(form, WC_LISTVIEWW, LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS, list_id)),
      field_(make(form, WC_COMBOBOXW, CBS_DROPDOWN | WS_VSCROLL, field_id)) {
    const LONG field_top = place.bottom - scaled(24);
    move_window(list_, {place.left, place.top, place.right, field_top - scaled(6)});
    move_window(field_, {place.left, field_top, place.right, place.bottom + scaled(150)}); // with its list
    set_font(list_, font);
    set_font(field_, font);
    SendMessageW(list_, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
    add_column(list_, category_column, L"Category", scaled(90));
    add_column(list_, name_column, L"Property", scaled(135));
    add_column(list_, value_column, L"Value", scaled(155));
}

void PropertyWindow::show(const PropertyTable* table) {
    table_ = table;
    SendMessageW(list_, LVM_DELETEALLITEMS, 0, 0);
    if (!table_)
        return;
    int row = 0;
    for (const Property& property : table_->properties()) {
        set_cell(list_, row, category_column, property.category);
        set_cell(list_, row, name_column, property.name);
        ++row;
    }
    refresh();
}

void PropertyWindow::refresh() const {
    int row = 0;
    if (table_)
        for (const Property& property : table_->properties())
            set_cell(list_, row++, value_column, table_->text(property));
}

void PropertyWindow::choose(const std::wstring& property) const {
    choose_row(list_, row_of(property));
}

const Property* PropertyWindow::chosen() const {
    const int row = chosen_row(list_);
    return table_ && row >= 0 ? &table_->properties()[static_cast<std::size_t>(row)] : nullptr;
}

void PropertyWindow::offer_value() const {
    const Property* const property = chosen();
    SendMessageW(field_, CB_RESETCONTENT, 0, 0);
    if (!property)
        return enter(L"");
    for (const std::wstring& choice : table_->choices(*property))
        SendMessageW(field_, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(choice.c_str()));
    enter(table_->text(*property));
}

std::wstring PropertyWindow::entered() const {
    wchar_t text[200] = L"";
    GetWindowTextW(field_, text, ARRAYSIZE(text));
    return text;
}

void PropertyWindow::enter(const std::wstring& text) const {
    SetWindowTextW(field_, text.c_str());
}

std::wstring PropertyWindow::shown_value(const std::wstring& property) const {
    return cell(list_, row_of(property), value_column);
}

int PropertyWindow::row_of(const std::wstring& property) const {
    return static_cast<int>(&table_->find(property) - table_->properties().data());
}

} // namespace vellora::samples
