#include "property_grid.h"

#include "hosting/child_window.h"
#include "hosting/invocation.h"
#include "hosting/report_list.h"

#include <algorithm>

namespace vellora::samples {

namespace {

constexpr int heading = -1;

HWND make_list(HWND parent, HFONT font) {
    const HWND list = CreateWindowExW(WS_EX_CLIENTEDGE, WC_LISTVIEWW, L"",
                                      WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_CLIPCHILDREN | LVS_REPORT |
                                          LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_NOSORTHEADER,
                                      0, 0, 0, 0, parent, nullptr, GetModuleHandleW(nullptr), nullptr);
    set_font(list, font);
    SendMessageW(list, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES,
                 LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES);
    return list;
}

HFONT bold_version(HFONT font) {
    LOGFONTW look{};
    GetObjectW(font, sizeof look, &look);
    look.lfWeight = FW_BOLD;
    return CreateFontIndirectW(&look);
}

} // namespace

PropertyGrid::PropertyGrid(HWND parent, Shell& shell, HFONT font)
    : Pane(parent, WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, WS_EX_CONTROLPARENT), shell_(shell),
      bold_(bold_version(font)), label_(make_label(window(), L"Properties", SS_ENDELLIPSIS)),
      list_(make_list(window(), font)), editor_(list_, font,
                                                {[this] { return accept(); }, [this] { restore(); },
                                                 [this](int rows) { go(rows); }, [this] { SetFocus(list_); }}),
      // Rows are as high as the images beside them, and the field over a value needs room.
      spacer_(ImageList_Create(1, editor_.height(), ILC_COLOR, 1, 1)) {
    set_font(label_, font);
    add_column(list_, name_column, L"Property", 0);
    add_column(list_, value_column, L"Value", 0);
    SendMessageW(list_, LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(spacer_));
    SetWindowSubclass(list_, list_procedure, 1, reinterpret_cast<DWORD_PTR>(this));
}

PropertyGrid::~PropertyGrid() {
    if (window())
        RemoveWindowSubclass(list_, list_procedure, 1);
    DeleteObject(bold_);
}

void PropertyGrid::show(std::unique_ptr<PropertyList> list, const std::wstring& owner) {
    const Property* const before = chosen();
    const std::wstring name = before ? before->name : L"";
    editor_.hide();
    properties_ = std::move(list);
    fill();
    refresh(owner);
    choose(name);
}

void PropertyGrid::refresh(const std::wstring& owner) {
    SetWindowTextW(label_, (L"Properties of " + owner).c_str());
    refresh_values();
}

void PropertyGrid::fill() {
    filling_ = true;
    SendMessageW(list_, WM_SETREDRAW, FALSE, 0);
    SendMessageW(list_, LVM_DELETEALLITEMS, 0, 0);
    rows_.clear();
    std::wstring category;
    int index = 0;
    for (const Property& property : properties_->properties()) {
        if (property.category != category) {
            category = property.category;
            set_cell(list_, static_cast<int>(rows_.size()), name_column, category);
            rows_.push_back(heading);
        }
        set_cell(list_, static_cast<int>(rows_.size()), name_column, property.name);
        rows_.push_back(index++);
    }
    filling_ = false;
    refresh_values();
    SendMessageW(list_, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(list_, nullptr, TRUE);
}

// Rows are only touched where the value is another one, so that nothing flickers.
void PropertyGrid::refresh_values() {
    for (int row = 0; row < static_cast<int>(rows_.size()); ++row) {
        const Property* const property = property_in(row);
        const std::wstring text = property ? text_of(*property) : L"";
        if (!property || text == cell(list_, row, value_column))
            continue;
        set_cell(list_, row, value_column, text);
        if (row == chosen_row(list_) && !editor_.has_focus())
            editor_.show_value(text);
    }
}

std::wstring PropertyGrid::text_of(const Property& property) const {
    try {
        return properties_->text(property);
    } catch (const Failure& failure) {
        return L"(" + failure.message() + L")";
    }
}

const Property* PropertyGrid::property_in(int row) const {
    if (row < 0 || row >= static_cast<int>(rows_.size()) || rows_[static_cast<std::size_t>(row)] == heading)
        return nullptr;
    return &properties_->properties()[static_cast<std::size_t>(rows_[static_cast<std::size_t>(row)])];
}

const Property* PropertyGrid::chosen() const {
    return property_in(chosen_row(list_));
}

int PropertyGrid::row_of(const std::wstring& property) const {
    for (int row = 0; row < static_cast<int>(rows_.size()); ++row)
        if (const Property* const one = property_in(row); one && one->name == property)
            return row;
    return -1;
}

void PropertyGrid::choose(const std::wstring& property) {
    const int row = row_of(property);
    choose_row(list_, row >= 0 ? row : std::min(1, static_cast<int>(rows_.size()) - 1));
    offer();
}

void PropertyGrid::edit() {
    if (!chosen())
        return;
    place_editor();
    editor_.enter();
}

void PropertyGrid::offer() {
    const Property* const property = chosen();
    if (!property || filling_)
        return editor_.hide();
    std::vector<std::wstring> choices;
    try {
        choices = properties_->choices(*property);
    } catch (const Failure&) {
        // A value that cannot be asked for can still be typed.
    }
    editor_.offer(choices, property->writable);
    editor_.show_value(text_of(*property));
    place_editor();
}

void PropertyGrid::place_editor() {
    const int row = chosen_row(list_);
    if (!property_in(row))
        return editor_.hide();
    RECT place{}, header{};
    ListView_GetSubItemRect(list_, row, value_column, LVIR_BOUNDS, &place);
    GetClientRect(ListView_GetHeader(list_), &header);
    const bool in_sight = place.top >= header.bottom && place.top < inside().bottom;
    if (!in_sight && !editor_.has_focus())
        return editor_.hide();
    editor_.show({place.left + 1, place.top, place.right, place.bottom - 1});
}

bool PropertyGrid::accept() {
    const Property* const property = chosen();
    if (!property || !editor_.changed())
        return true;
    try {
        properties_->set(*property, editor_.text());
    } catch (const Failure& failure) {
        shell_.say(property->name + L": " + sentence(failure));
        editor_.enter();
        return false;
    }
    editor_.show_value(text_of(*property));
    shell_.say(property->name + L" is " + editor_.text());
    shell_.values_changed(true);
    refresh_values();
    return true;
}

void PropertyGrid::restore() {
    if (const Property* const property = chosen())
        editor_.show_value(text_of(*property));
}

// The person turned to something else: what is refused cannot be mended any more.
void PropertyGrid::leave_value() {
    const Property* const property = chosen();
    if (!property || !editor_.changed())
        return restore();
    try {
        properties_->set(*property, editor_.text());
        shell_.values_changed(true);
    } catch (const Failure& failure) {
        shell_.say(property->name + L": " + sentence(failure));
    }
    restore();
}

void PropertyGrid::take_next() {
    const Property* const property = chosen();
    if (!property || !editor_.has_choices())
        return edit();
    const std::vector<std::wstring> all = properties_->choices(*property);
    auto now = std::ranges::find(all, text_of(*property));
    if (now != all.end())
        ++now;
    editor_.set_text(now == all.end() ? all.front() : *now);
    accept();
}

void PropertyGrid::go(int rows) {
    int row = chosen_row(list_) + rows;
    while (row >= 0 && row < static_cast<int>(rows_.size()) && !property_in(row))
        row += rows;
    if (!property_in(row))
        return;
    choose_row(list_, row);
    edit();
}

std::wstring PropertyGrid::shown_value(const std::wstring& property) const {
    return cell(list_, row_of(property), value_column);
}

std::vector<std::wstring> PropertyGrid::choices(const std::wstring& property) const {
    const Property* const found = property_in(row_of(property));
    return found ? properties_->choices(*found) : std::vector<std::wstring>();
}

std::vector<std::pair<std::wstring, RECT>> PropertyGrid::places() const {
    std::vector<std::pair<std::wstring, RECT>> result;
    const int first = ListView_GetTopIndex(list_);
    for (int row = first; row < first + ListView_GetCountPerPage(list_); ++row) {
        RECT place{};
        if (const Property* const property = property_in(row); property) {
            ListView_GetItemRect(list_, row, &place, LVIR_BOUNDS);
            MapWindowPoints(list_, nullptr, reinterpret_cast<POINT*>(&place), 2);
            result.emplace_back(property->name, place);
        }
    }
    return result;
}

} // namespace vellora::samples
