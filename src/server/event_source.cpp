#include "server/event_source.h"

#include "com/control_host.h"

namespace vellora::server {

namespace {

// The identifiers of __Vellora; hosts hold them.
namespace event {
constexpr DISPID change = 1;
constexpr DISPID click = 2;
constexpr DISPID column_click = 3;
constexpr DISPID double_click = 4;
constexpr DISPID item_check = 5;
constexpr DISPID key_down = 6;
constexpr DISPID key_press = 7;
constexpr DISPID key_up = 8;
constexpr DISPID mouse_down = 9;
constexpr DISPID mouse_move = 10;
constexpr DISPID mouse_up = 11;
constexpr DISPID drop_down = 12;
constexpr DISPID column_reorder = 13;
} // namespace event

} // namespace

using com::boolean_by_reference;
using com::by_reference;
using com::by_value;

void EventSource::change() { host_.fire(event::change); }

void EventSource::click() { host_.fire(event::click); }

void EventSource::column_click(std::int16_t index) { host_.fire(event::column_click, by_value(index)); }

void EventSource::double_click() { host_.fire(event::double_click); }

void EventSource::item_check(std::int16_t item_index, bool state, bool& cancel) {
    VARIANT_BOOL answer = cancel ? VARIANT_TRUE : VARIANT_FALSE;
    host_.fire(event::item_check, by_value(item_index), by_value(state), boolean_by_reference(answer));
    cancel = answer != VARIANT_FALSE;
}

void EventSource::key_down(std::int16_t& key_code, std::int16_t& shift) {
    host_.fire(event::key_down, by_reference(key_code), by_reference(shift));
}

void EventSource::key_press(std::int16_t& key_ascii) { host_.fire(event::key_press, by_reference(key_ascii)); }

void EventSource::key_up(std::int16_t& key_code, std::int16_t& shift) {
    host_.fire(event::key_up, by_reference(key_code), by_reference(shift));
}

void EventSource::mouse_down(std::int16_t& button, std::int16_t& shift, float& x, float& y) {
    fire_mouse(event::mouse_down, button, shift, x, y);
}

void EventSource::mouse_move(std::int16_t& button, std::int16_t& shift, float& x, float& y) {
    fire_mouse(event::mouse_move, button, shift, x, y);
}

void EventSource::mouse_up(std::int16_t& button, std::int16_t& shift, float& x, float& y) {
    fire_mouse(event::mouse_up, button, shift, x, y);
}

void EventSource::fire_mouse(long event, std::int16_t& button, std::int16_t& shift, float& x, float& y) {
    host_.fire(event, by_reference(button), by_reference(shift), by_reference(x), by_reference(y));
}

// The argument goes out by reference as declared, but nobody asks what became of it: an opening or closing
// has happened when it is reported.
void EventSource::drop_down(DropDownState state) {
    auto argument = static_cast<std::int32_t>(state);
    host_.fire(event::drop_down, by_reference(argument));
}

void EventSource::column_reorder() { host_.fire(event::column_reorder); }

} // namespace vellora::server
