// Mouse and keyboard as the platform turns them into focus changes, messages and notices.
#include "support/headless/user.h"

#include <algorithm>

namespace vellora::test {

namespace {

constexpr std::int16_t backspace = 8;
constexpr std::int16_t enter = 13;
constexpr std::int16_t del = 46;

} // namespace

void User::press_button() {
    HeadlessCheckButton& shown = combo_.button(combo_.button(0).visible() ? 0 : 1);
    shown.press();
}

void User::release_button() {
    for (std::size_t element : {0U, 1U}) {
        if (combo_.button(element).is_pressed()) {
            combo_.button(element).release();
            return;
        }
    }
}

void User::click_button() {
    press_button();
    release_button();
}

void User::click_row(std::int32_t row) {
    combo_.desktop().set_focus(combo_.list_view.window());
    combo_.list_view.rows().select(row);
    if (combo_.list_view.listener() != nullptr) {
        combo_.list_view.listener()->list_clicked();
    }
}

void User::click_check_box(std::int32_t row) {
    ListRows& rows = combo_.list_view.rows();
    combo_.desktop().set_focus(combo_.list_view.window());
    rows.set_checked(row, !rows.checked(row));
    if (combo_.list_view.listener() != nullptr) {
        combo_.list_view.listener()->list_item_checked(row);
    }
    if (combo_.list_view.listener() != nullptr) {
        combo_.list_view.listener()->list_clicked();
    }
}

void User::press_key_in_list(std::int16_t code, std::int16_t shift) {
    combo_.list_view.listener()->list_key_down(code, shift);
    if (code == enter && combo_.list_view.listener() != nullptr) {
        combo_.list_view.listener()->list_key_press(code);
    }
}

void User::click_text() {
    combo_.desktop().set_focus(text_box().window());
}

void User::click_elsewhere() {
    combo_.desktop().set_focus(combo_.world().other);
}

HeadlessTextBox& User::text_box() {
    for (std::size_t element : {1U, 2U}) {
        if (combo_.text_box(element).visible()) {
            return combo_.text_box(element);
        }
    }
    return combo_.text_box(0);
}

bool User::key_down(std::int16_t& code, std::int16_t shift) {
    if (text_box().listener() != nullptr) {
        text_box().listener()->text_key_down(code, shift);
    }
    return text_box().listener() != nullptr;
}

void User::key_up(std::int16_t code, std::int16_t shift) {
    if (text_box().listener() != nullptr) {
        text_box().listener()->text_key_up(code, shift);
    }
}

std::int16_t User::press_key(std::int16_t code, std::int16_t shift) {
    std::int16_t left = code;
    key_down(left, shift);
    key_up(code, shift);
    return left;
}

void User::type(std::u16string_view text) {
    for (char16_t unit : text) {
        type_unit(unit);
    }
}

void User::type_unit(char16_t unit) {
    const bool small = unit >= u'a' && unit <= u'z';
    const auto code = static_cast<std::int16_t>(small ? unit - u'a' + u'A' : unit);
    std::int16_t left = code;
    auto ascii = static_cast<std::int16_t>(unit);
    if (!key_down(left, 0)) {
        return;
    }
    text_box().listener()->text_key_press(ascii);
    if (ascii != 0 && may_edit()) {
        const char16_t typed[] = {static_cast<char16_t>(ascii)};
        text_box().set_selected_text(std::u16string_view(typed, 1));
    }
    key_up(code, 0);
}

void User::press_backspace() {
    std::int16_t left = backspace;
    if (key_down(left, 0)) {
        const std::int32_t start = text_box().selection_start();
        const std::int32_t length = text_box().selection_length();
        erase(length > 0 ? start : start - 1, std::max(length, 1));
    }
    key_up(backspace, 0);
}

void User::press_delete() {
    std::int16_t left = del;
    if (key_down(left, 0)) {
        erase(text_box().selection_start(), std::max(text_box().selection_length(), 1));
    }
    key_up(del, 0);
}

bool User::may_edit() {
    return !text_box().locked() && text_box().listener() != nullptr && text_box().listener()->text_may_change();
}

void User::erase(std::int32_t from, std::int32_t length) {
    if (from < 0 || !may_edit()) {
        return;
    }
    text_box().set_selection_start(from);
    text_box().set_selection_length(length);
    text_box().set_selected_text({});
}

bool User::drag_divider(std::int32_t column, std::int32_t code) {
    combo_.user32.hit_item = column - 1;
    return notify(code) != 1;
}

bool User::drop_header() {
    return notify(notification::header_end_drag) == 0;
}

std::intptr_t User::notify(std::int32_t code) {
    const Notification note{combo_.list_view.header_window(), 0, code};
    return combo_.desktop().send(combo_.list_view.window(), message::notify, 0,
                                 reinterpret_cast<std::intptr_t>(&note));
}

} // namespace vellora::test
