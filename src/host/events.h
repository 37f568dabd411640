// The events of the control, as it raises them. A handler may do anything, also end the control: whoever
// raises one reads again afterwards what it needs.
#pragma once

#include <cstdint>

namespace vellora {

enum class DropDownState : std::int32_t { open = 0, closed = 1 };

class Events {
public:
    virtual ~Events() = default;

    virtual void change() = 0;
    virtual void click() = 0;
    virtual void column_click(std::int16_t index) = 0;
    virtual void double_click() = 0;
    virtual void item_check(std::int16_t item_index, bool state, bool& cancel) = 0;
    virtual void key_down(std::int16_t& key_code, std::int16_t& shift) = 0;
    virtual void key_press(std::int16_t& key_ascii) = 0;
    virtual void key_up(std::int16_t& key_code, std::int16_t& shift) = 0;
    virtual void mouse_down(std::int16_t& button, std::int16_t& shift, float& x, float& y) = 0;
    virtual void mouse_move(std::int16_t& button, std::int16_t& shift, float& x, float& y) = 0;
    virtual void mouse_up(std::int16_t& button, std::int16_t& shift, float& x, float& y) = 0;
    virtual void drop_down(DropDownState state) = 0;
    virtual void column_reorder() = 0;
};

} // namespace vellora
