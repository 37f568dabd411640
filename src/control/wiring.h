// Brings what constituents report to the part of the control that answers it, and holds the instance meanwhile: a
// program's handler may let go of the control in the middle of any of these.
#pragma once

#include "control/control.h"
#include "widgets/form_watch.h"

#include <memory>

namespace vellora {

class Control::Wiring final : public TextBoxListener,
                              public CheckButtonListener,
                              public ListViewListener,
                              public LabelListener,
                              public SurfaceListener,
                              public FormWatchListener,
                              public MessageRecievedListener {
public:
    Wiring(Control& control, FormWatch& form_watch);
    ~Wiring();
    Wiring(const Wiring&) = delete;
    Wiring& operator=(const Wiring&) = delete;

private:
    void connect(bool on);
    std::shared_ptr<void> hold() const { return control_.core_.site.keep_alive(); }
    Events& events() const { return control_.core_.events; }

    void text_key_down(std::int16_t& key_code, std::int16_t& shift) override;
    void text_key_press(std::int16_t& key_ascii) override;
    void text_key_up(std::int16_t& key_code, std::int16_t& shift) override;
    bool text_may_change() override;
    void text_changed() override;
    void text_mouse_down(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
    void text_mouse_move(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
    void text_mouse_up(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
    void text_double_click() override;
    void text_got_focus() override;

    void button_clicked(int index) override;
    void button_pressed(int index) override;
    void button_released(int index) override;

    void list_clicked() override;
    void list_column_clicked(std::int32_t column) override;
    void list_item_checked(std::int32_t row) override;
    void list_key_down(std::int16_t& key_code, std::int16_t shift) override;
    void list_key_press(std::int16_t& key_ascii) override;

    void label_pressed(std::int16_t button) override;
    void label_mouse_moved() override;
    void label_released() override;

    void surface_resized() override;
    void surface_lost_focus() override;
    void surface_focus_left() override;
    void surface_font_changed() override;
    void surface_withdrawn() override;
    void surface_destroyed() override;

    void form_disturbed() override;

    void MsgHandler_MessageRecieved(std::uint32_t uMsg, std::uintptr_t wParam, std::intptr_t lParam,
                                    std::intptr_t& lRetVal) override;

    Control& control_;
    FormWatch& form_watch_;
};

} // namespace vellora
