// What a person does with mouse and keyboard, on the headless desktop.
#pragma once

#include "support/headless/headless_control.h"

#include <string_view>

namespace vellora::test {

/// A handler may end the control in the middle of a gesture; the rest of the gesture then meets nobody.
class User {
public:
    explicit User(HeadlessControl& combo) : combo_(combo) {}

    /// The mouse on whichever drop button shows.
    void press_button();
    void release_button();
    void click_button();
    /// A click on a row of the list; -1 for the blank area under the rows.
    void click_row(std::int32_t row);
    void click_check_box(std::int32_t row);
    void press_key_in_list(std::int16_t code, std::int16_t shift = 0);
    void click_text();
    /// A click on another window of the form.
    void click_elsewhere();

    /// Key down, its character where it has one, key up. Answers the code the text box was left with.
    std::int16_t press_key(std::int16_t code, std::int16_t shift = 0);
    /// Letters, digits and spaces, one key after the other.
    void type(std::u16string_view text);
    void press_backspace();
    void press_delete();

    /// Starts to drag the divider right of a column, 1-based; 0 for a place without a column. False when
    /// refused.
    bool drag_divider(std::int32_t column, std::int32_t code = notification::header_begin_track_ansi);
    /// Lets a dragged header go.
    /// Whether the header goes on to carry out the new order.
    bool drop_header();

private:
    HeadlessTextBox& text_box();
    bool key_down(std::int16_t& code, std::int16_t shift);
    void key_up(std::int16_t code, std::int16_t shift);
    std::intptr_t notify(std::int32_t code);
    void type_unit(char16_t unit);
    bool may_edit();
    void erase(std::int32_t from, std::int32_t length);

    HeadlessControl& combo_;
};

} // namespace vellora::test
