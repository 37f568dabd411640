// A property on a page as one sees it: a label and a box, or a check box with its label.
#pragma once

#include "com/page_member.h"

namespace vellora::com {

class PageField {
public:
    /// Makes the windows in a dialog. `row` is in dialog units; the box gets the identifier `id`, a button beside it
    /// the next one.
    PageField(HWND dialog, const PageMember& member, const RECT& row, int id);

    const PageMember& member() const noexcept { return *member_; }
    HWND box() const noexcept { return box_; }

    void show(const Variant& value) const;
    /// What stands in the box, for the property to take.
    Variant entered() const;
    /// True for a notification with which the user changed the value.
    bool is_change(int notification) const noexcept;
    /// Lets the user choose a colour from a dialog of the platform.
    void choose_color() const;

private:
    const PageMember* member_;
    HWND box_ = nullptr;
};

/// Two identifiers for each field.
inline constexpr int ids_per_field = 2;

/// A window in a dialog with the dialog's font, at a place in dialog units.
HWND add_dialog_item(HWND dialog, const wchar_t* window_class, const wchar_t* text, DWORD style, RECT place,
                     int id);
/// The two parts of a row: where the label stands and where the box.
struct LabelledRow {
    RECT label;
    RECT box;
};
LabelledRow parts_of_row(const RECT& row);

} // namespace vellora::com
