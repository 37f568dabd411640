#include "com/page_field.h"

#include "com/bstr.h"
#include "com/live_object.h"

#include <algorithm>

#include <commdlg.h>

namespace vellora::com {

namespace {

// In dialog units, by the platform's own guide lines for dialogs.
constexpr int label_width = 92;
constexpr int label_drop = 2; // brings the label's baseline to that of the text in the box
constexpr int drop_height = 100;
constexpr int button_width = 14;

HWND add_text(HWND dialog, const RECT& place, int id) {
    const HWND edit = add_dialog_item(dialog, L"Edit", L"", WS_TABSTOP | ES_AUTOHSCROLL, place, id);
    SetWindowLongPtrW(edit, GWL_EXSTYLE, GetWindowLongPtrW(edit, GWL_EXSTYLE) | WS_EX_CLIENTEDGE);
    SetWindowPos(edit, nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_FRAMECHANGED);
    return edit;
}

HWND add_color(HWND dialog, RECT place, int id) {
    RECT button = place;
    button.left = button.right - button_width;
    place.right = button.left - 2;
    const HWND edit = add_text(dialog, place, id);
    add_dialog_item(dialog, L"Button", L"...", WS_TABSTOP, button, id + 1);
    return edit;
}

HWND add_choice(HWND dialog, RECT place, int id, const std::vector<Choice>& choices) {
    place.bottom += drop_height;
    const HWND box =
        add_dialog_item(dialog, L"ComboBox", L"", WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST, place, id);
    for (const Choice& choice : choices)
        SendMessageW(box, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(choice.text.c_str()));
    return box;
}

HWND add_box(HWND dialog, const PageMember& member, const RECT& place, int id) {
    switch (member.entry) {
    case PageEntry::choice:
        return add_choice(dialog, place, id, member.choices);
    case PageEntry::color:
        return add_color(dialog, place, id);
    default:
        return add_text(dialog, place, id);
    }
}

std::u16string window_text(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return std::u16string(narrow_view(text));
}

/// The value as the box shows it; a value that has no text is empty.
std::u16string shown_text(const Variant& value, PageEntry entry) {
    // Colours of the system are negative numbers here, which not every platform converts to unsigned ones.
    if (entry == PageEntry::color && value.type() == VT_I4)
        return color_text(static_cast<std::uint32_t>(V_I4(&value.get())));
    Variant converted_value;
    if (FAILED(convert(value.get(), VT_BSTR, converted_value)))
        return {};
    return std::u16string(bstr_view(V_BSTR(&converted_value.get())));
}

std::int32_t long_in(const Variant& value) {
    Variant number;
    return SUCCEEDED(convert(value.get(), VT_I4, number)) ? V_I4(&number.get()) : 0;
}

} // namespace

HWND add_dialog_item(HWND dialog, const wchar_t* window_class, const wchar_t* text, DWORD style, RECT place,
                     int id) {
    MapDialogRect(dialog, &place);
    const HWND window =
        CreateWindowExW(WS_EX_NOPARENTNOTIFY, window_class, text, WS_CHILD | WS_VISIBLE | style, place.left,
                        place.top, place.right - place.left, place.bottom - place.top, dialog,
                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
    SendMessageW(window, WM_SETFONT, static_cast<WPARAM>(SendMessageW(dialog, WM_GETFONT, 0, 0)), FALSE);
    return window;
}

LabelledRow parts_of_row(const RECT& row) {
    LabelledRow parts = {row, row};
    parts.label.top += label_drop;
    parts.label.right = parts.box.left = row.left + label_width;
    return parts;
}

PageField::PageField(HWND dialog, const PageMember& member, const RECT& row, int id) : member_(&member) {
    if (member.entry == PageEntry::flag) {
        box_ = add_dialog_item(dialog, L"Button", wide(member.name.c_str()), WS_TABSTOP | BS_AUTOCHECKBOX, row,
                               id);
        return;
    }
    const LabelledRow parts = parts_of_row(row);
    add_dialog_item(dialog, L"Static", wide(member.name.c_str()), SS_NOPREFIX, parts.label, -1);
    box_ = add_box(dialog, member, parts.box, id);
}

void PageField::show(const Variant& value) const {
    if (member_->entry == PageEntry::flag) {
        SendMessageW(box_, BM_SETCHECK, long_in(value) != 0 ? BST_CHECKED : BST_UNCHECKED, 0);
    } else if (member_->entry == PageEntry::choice) {
        const std::int32_t wanted = long_in(value);
        const auto found = std::ranges::find(member_->choices, wanted, &Choice::value);
        SendMessageW(box_, CB_SETCURSEL, static_cast<WPARAM>(found - member_->choices.begin()), 0);
    } else {
        SetWindowTextW(box_, wide(shown_text(value, member_->entry).c_str()));
    }
}

Variant PageField::entered() const {
    switch (member_->entry) {
    case PageEntry::flag:
        return Variant(SendMessageW(box_, BM_GETCHECK, 0, 0) == BST_CHECKED);
    case PageEntry::choice:
        return Variant(member_->choices.at(static_cast<std::size_t>(SendMessageW(box_, CB_GETCURSEL, 0, 0))).value);
    case PageEntry::color:
        return color_value(window_text(box_));
    default:
        return Variant(window_text(box_));
    }
}

bool PageField::is_change(int notification) const noexcept {
    switch (member_->entry) {
    case PageEntry::flag:
        return notification == BN_CLICKED;
    case PageEntry::choice:
        return notification == CBN_SELCHANGE;
    default:
        return notification == EN_CHANGE;
    }
}

void PageField::choose_color() const {
    const LiveObject alive; // the page may be released while the dialog stands
    static COLORREF own_colors[16] = {}; // the user's, for as long as the library is loaded
    CHOOSECOLORW choice = {};
    choice.lStructSize = sizeof choice;
    choice.hwndOwner = GetAncestor(box_, GA_ROOT);
    choice.Flags = CC_RGBINIT | CC_FULLOPEN;
    choice.lpCustColors = own_colors;
    OleTranslateColor(static_cast<OLE_COLOR>(long_in(entered())), nullptr, &choice.rgbResult);
    const HWND box = box_; // the page may be gone by the time the dialog is closed, and the field with it
    if (ChooseColorW(&choice))
        SetWindowTextW(box, wide(color_text(choice.rgbResult).c_str()));
}

} // namespace vellora::com
