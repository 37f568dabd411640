#include "server/constituent_peers.h"

namespace vellora::server {

namespace {

// Element 1 is the button one sees while the list is open. Its value is 0 then, and it looks pressed.
constexpr int second_button_looks_pressed_at = 0;

} // namespace

ConstituentPeers::ConstituentPeers(HWND parking, const TextCompare& compare,
                                   win32::FloatingWindowListener* floating)
    : surface(parking),
      text_boxes{{{surface, win32::TextAlignment::left},
                  {surface, win32::TextAlignment::right},
                  {surface, win32::TextAlignment::centered}}},
      buttons{{{surface, 0}, {surface, 1, second_button_looks_pressed_at}}},
      list(surface.handle(), surface.focus_tracker(), compare),
      frame(surface), grip{win32::LabelPeer(frame), win32::LabelPeer(frame)}, left_line(frame),
      right_line(frame), bottom_line(frame), user32(surface.focus_tracker(), floating) {
    text_boxes[0].set_visible(true);
}

Constituents ConstituentPeers::references() {
    return {{&text_boxes[0], &text_boxes[1], &text_boxes[2]},
            {&buttons[0], &buttons[1]},
            list,
            frame,
            left_line,
            right_line,
            bottom_line,
            {&grip[0], &grip[1]}};
}

const win32::TextBoxPeer& ConstituentPeers::text_box(std::int32_t alignment) const {
    const bool known = alignment >= 0 && alignment <= 2;
    return text_boxes[known ? static_cast<std::size_t>(alignment) : 0];
}

const win32::CheckButtonPeer& ConstituentPeers::visible_button() const {
    return buttons[1].visible() ? buttons[1] : buttons[0];
}

} // namespace vellora::server
