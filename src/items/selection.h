// The selected row, and how its text gets into the text field.
#pragma once

#include "control/core.h"

#include <cstdint>
#include <string>

namespace vellora {

class ControlObject;
class DropDown;

class Selection {
public:
    Selection(ControlCore& core, ControlObject& object, DropDown& drop_down);

    /// 0-based, -1 for none; read from the list itself, so a selection of the user shows at once.
    std::int32_t ListIndex();
    /// Writes the text, scrolls and raises Click once; nothing at all for the present index, no Click for -1. Error 387
    /// in design mode, 381 for a row that is not there, 35600 when the list cannot scroll where it should (a row near
    /// the top, with DropDownHeight under three rows). While properties load, the mode does not matter.
    void put_ListIndex(std::int32_t index);

    std::int16_t TextColumn() const;
    /// 1-based. Used from the next selection on. Error 380 outside 1 to Columns.
    void put_TextColumn(std::int16_t column);

    /// Takes over what is selected in the list: text and Click. Nothing selected, nothing done.
    void subSelectListItem();

    // What the user does in the list.
    void list_clicked();
    void list_column_clicked(std::int32_t column);
    void list_key_down(std::int16_t& key_code, std::int16_t shift);
    void list_key_press(std::int16_t& key_ascii);

private:
    std::u16string text_of(std::int32_t row) const;
    void scroll_to(std::int32_t row);
    void leave_by_tab();

    ControlCore& core_;
    ControlObject& object_;
    DropDown& drop_down_;
    bool pass_next_column_click_ = false;
};

} // namespace vellora
