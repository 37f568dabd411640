// Writing events down and running the test's handlers.
#include "support/headless/event_recorder.h"

namespace vellora::test {

namespace {

std::string two(const char* event, std::int16_t first, std::int16_t second) {
    return std::string(event) + "(" + std::to_string(first) + ", " + std::to_string(second) + ")";
}

std::string mouse(const char* event, std::int16_t button, std::int16_t shift, float x, float y) {
    return std::string(event) + "(" + std::to_string(button) + ", " + std::to_string(shift) + ", " +
           readable(static_cast<double>(x)) + ", " + readable(static_cast<double>(y)) + ")";
}

} // namespace

// The handler is copied before it runs: it may put another one in its own place.
template <class Handler, class... Arguments>
void EventRecorder::raise(const std::string& line, Handler& handler, Arguments&... arguments) {
    journal_.add(Journal::Kind::event, prefix_ + line);
    const Handler running = handler;
    if (running) {
        running(arguments...);
    }
}

void EventRecorder::change() {
    raise("Change", on_change);
}
void EventRecorder::click() {
    raise("Click", on_click);
}
void EventRecorder::double_click() {
    raise("DblClick", on_double_click);
}
void EventRecorder::column_reorder() {
    raise("ColumnReorder", on_column_reorder);
}

void EventRecorder::column_click(std::int16_t index) {
    raise("ColumnClick(" + std::to_string(index) + ")", on_column_click, index);
}

void EventRecorder::item_check(std::int16_t item_index, bool state, bool& cancel) {
    raise("ItemCheck(" + std::to_string(item_index) + ", " + (state ? "True" : "False") + ")", on_item_check,
          item_index, state, cancel);
}

void EventRecorder::key_down(std::int16_t& key_code, std::int16_t& shift) {
    raise(two("KeyDown", key_code, shift), on_key_down, key_code, shift);
}

void EventRecorder::key_press(std::int16_t& key_ascii) {
    raise("KeyPress(" + std::to_string(key_ascii) + ")", on_key_press, key_ascii);
}

void EventRecorder::key_up(std::int16_t& key_code, std::int16_t& shift) {
    raise(two("KeyUp", key_code, shift), on_key_up, key_code, shift);
}

void EventRecorder::mouse_down(std::int16_t& button, std::int16_t& shift, float& x, float& y) {
    raise(mouse("MouseDown", button, shift, x, y), on_mouse_down, button, shift, x, y);
}

void EventRecorder::mouse_move(std::int16_t& button, std::int16_t& shift, float& x, float& y) {
    raise(mouse("MouseMove", button, shift, x, y), on_mouse_move, button, shift, x, y);
}

void EventRecorder::mouse_up(std::int16_t& button, std::int16_t& shift, float& x, float& y) {
    raise(mouse("MouseUp", button, shift, x, y), on_mouse_up, button, shift, x, y);
}

void EventRecorder::drop_down(DropDownState state) {
    raise(state == DropDownState::open ? "DropDown(open)" : "DropDown(closed)", on_drop_down, state);
}

} // namespace vellora::test
