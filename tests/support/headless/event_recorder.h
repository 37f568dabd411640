// The host's event handlers: each event is a line of the journal, then runs the handler a test has put in.
// Lines show the arguments as the control gave them.
#pragma once

#include "host/events.h"
#include "support/headless/journal.h"

#include <functional>
#include <utility>

namespace vellora::test {

class EventRecorder : public Events {
public:
    using KeyHandler = std::function<void(std::int16_t& key_code, std::int16_t& shift)>;
    using MouseHandler = std::function<void(std::int16_t& button, std::int16_t& shift, float& x, float& y)>;

    /// `prefix` begins every line, to tell one control from another.
    explicit EventRecorder(Journal& journal, std::string prefix = {})
        : journal_(journal), prefix_(std::move(prefix)) {}

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

    std::function<void()> on_change;
    std::function<void()> on_click;
    std::function<void(std::int16_t index)> on_column_click;
    std::function<void()> on_double_click;
    std::function<void(std::int16_t item_index, bool state, bool& cancel)> on_item_check;
    KeyHandler on_key_down;
    std::function<void(std::int16_t& key_ascii)> on_key_press;
    KeyHandler on_key_up;
    MouseHandler on_mouse_down;
    MouseHandler on_mouse_move;
    MouseHandler on_mouse_up;
    std::function<void(DropDownState state)> on_drop_down;
    std::function<void()> on_column_reorder;

private:
    template <class Handler, class... Arguments>
    void raise(const std::string& line, Handler& handler, Arguments&... arguments);

    Journal& journal_;
    std::string prefix_;
};

} // namespace vellora::test
