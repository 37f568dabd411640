#include "control/wiring.h"

namespace vellora {

Control::Wiring::Wiring(Control& control, FormWatch& form_watch) : control_(control), form_watch_(form_watch) {
    connect(true);
}

Control::Wiring::~Wiring() { connect(false); }

void Control::Wiring::connect(bool on) {
    Constituents& parts = control_.core_.parts;
    for (TextBox* text_box : parts.txtTextProperty) {
        text_box->listen(on ? this : nullptr);
    }
    for (CheckButton* button : parts.chkDropDown) {
        button->listen(on ? this : nullptr);
    }
    for (Label* half : parts.lblShangle) {
        half->listen(on ? this : nullptr);
    }
    parts.ListView1.listen(on ? this : nullptr);
    control_.core_.surface.listen(on ? this : nullptr);
    form_watch_.listen(on ? this : nullptr);
}

void Control::Wiring::text_key_down(std::int16_t& key_code, std::int16_t& shift) {
    const auto held = hold();
    control_.text_field_.key_down(key_code, shift);
}

void Control::Wiring::text_key_press(std::int16_t& key_ascii) {
    const auto held = hold();
    events().key_press(key_ascii);
}

void Control::Wiring::text_key_up(std::int16_t& key_code, std::int16_t& shift) {
    const auto held = hold();
    control_.text_field_.key_up(key_code, shift);
}

bool Control::Wiring::text_may_change() {
    const auto held = hold();
    return control_.object_.may_change_text();
}

void Control::Wiring::text_changed() {
    const auto held = hold();
    control_.text_field_.changed();
    control_.core_.surface.announce(Announcement::value_changed);
}

void Control::Wiring::text_mouse_down(std::int16_t& button, std::int16_t& shift, float& x, float& y) {
    const auto held = hold();
    events().mouse_down(button, shift, x, y);
}

void Control::Wiring::text_mouse_move(std::int16_t& button, std::int16_t& shift, float& x, float& y) {
    const auto held = hold();
    events().mouse_move(button, shift, x, y);
}

void Control::Wiring::text_mouse_up(std::int16_t& button, std::int16_t& shift, float& x, float& y) {
    const auto held = hold();
    events().mouse_up(button, shift, x, y);
}

void Control::Wiring::text_double_click() {
    const auto held = hold();
    events().double_click();
}

void Control::Wiring::text_got_focus() {
    const auto held = hold();
    control_.text_field_.got_focus();
}

void Control::Wiring::button_clicked(int index) {
    const auto held = hold();
    control_.drop_down_.chkDropDown_Click(index);
}

void Control::Wiring::button_pressed(int) {
    const auto held = hold();
    control_.drop_down_.chkDropDown_MouseDown();
}

void Control::Wiring::button_released(int) {
    const auto held = hold();
    control_.drop_down_.chkDropDown_MouseUp();
}

void Control::Wiring::list_clicked() {
    const auto held = hold();
    control_.selection_.list_clicked();
}

void Control::Wiring::list_column_clicked(std::int32_t column) {
    const auto held = hold();
    control_.selection_.list_column_clicked(column);
}

void Control::Wiring::list_item_checked(std::int32_t row) {
    const auto held = hold();
    control_.check_boxes_.list_item_checked(row);
}

void Control::Wiring::list_key_down(std::int16_t& key_code, std::int16_t shift) {
    const auto held = hold();
    control_.list_keys_.list_key_down(key_code, shift);
    control_.selection_.list_key_down(key_code, shift);
}

void Control::Wiring::list_key_press(std::int16_t& key_ascii) {
    const auto held = hold();
    control_.list_keys_.list_key_press(key_ascii);
    control_.selection_.list_key_press(key_ascii);
}

void Control::Wiring::label_pressed(std::int16_t button) {
    const auto held = hold();
    control_.resize_grip_.lblShangle_MouseDown(button);
}

void Control::Wiring::label_mouse_moved() {
    const auto held = hold();
    control_.resize_grip_.lblShangle_MouseMove();
}

void Control::Wiring::label_released() {
    const auto held = hold();
    control_.resize_grip_.lblShangle_MouseUp();
}

void Control::Wiring::surface_resized() {
    const auto held = hold();
    control_.layout_.Resize();
}

void Control::Wiring::surface_lost_focus() {
    const auto held = hold();
    control_.drop_down_.UserControl_LostFocus();
}

void Control::Wiring::surface_focus_left() {
    const auto held = hold();
    control_.text_field_.focus_left();
    control_.drop_down_.UserControl_ExitFocus();
}

// Saving a font means saving its look.
void Control::Wiring::surface_font_changed() {
    const auto held = hold();
    control_.core_.property_changed(u"Font");
}

void Control::Wiring::surface_withdrawn() {
    const auto held = hold();
    control_.drop_down_.subCloseDropDown();
}

void Control::Wiring::surface_destroyed() {
    const auto held = hold();
    control_.drop_down_.subHideListView();
}

void Control::Wiring::form_disturbed() {
    const auto held = hold();
    control_.drop_down_.subCloseDropDown();
}

void Control::Wiring::MsgHandler_MessageRecieved(std::uint32_t uMsg, std::uintptr_t wParam,
                                                 std::intptr_t lParam, std::intptr_t& lRetVal) {
    const auto held = hold();
    control_.list_messages_.MsgHandler_MessageRecieved(uMsg, wParam, lParam, lRetVal);
}

} // namespace vellora
