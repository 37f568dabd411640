// The control's events on their way to the container's sinks, by their identifiers.
#pragma once

#include "host/events.h"

namespace vellora::com {
class ControlHost;
}

namespace vellora::server {

class EventSource final : public Events {
public:
    explicit EventSource(com::ControlHost& host) : host_(host) {}

    void change() override;
    void click() override;
    void column_click(std::int16_t index) override;
    void double_click() override;
    void item_check(std::int16_t item_index, bool state, bool& cancel) override;
    void key_down(std::int16_t& key_code, std::int16_t& shift) override;
    void key_press(std::int16_t& key_ascii) override;
    void key_up(std::int16_t& key_code, std::int16_t& shift) override;
    void mouse_down(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
    void mouse_move(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
    void mouse_up(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
    void drop_down(DropDownState state) override;
    void column_reorder() override;

private:
    void fire_mouse(long event, std::int16_t& button, std::int16_t& shift, float& x, float& y);

    com::ControlHost& host_;
};

} // namespace vellora::server
