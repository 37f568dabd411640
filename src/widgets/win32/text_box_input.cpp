#include "widgets/win32/text_box_input.h"

#include "widgets/win32/user_input.h"

namespace vellora::win32 {

namespace {

// A single-line field has no use for these and would beep; what they mean is the form's business.
bool is_dialog_character(std::uint16_t unit) {
    return unit == L'\t' || unit == L'\n' || unit == L'\r' || unit == VK_ESCAPE;
}

} // namespace

std::optional<LRESULT> TextBoxInput::answer(const EditMessage& message) {
    switch (message.id) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
        return key_down(message);
    case WM_KEYUP:
    case WM_SYSKEYUP:
        return key_up(message);
    case WM_CHAR:
        return character(message);
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDBLCLK:
    case WM_MBUTTONDBLCLK:
        return double_click(message);
    case WM_SETFOCUS:
        return got_focus(message);
    case WM_KILLFOCUS:
        return lost_focus(message);
    case WM_MOUSEMOVE:
        return mouse(message);
    default:
        return button_of(message.id) != 0 ? std::optional(mouse(message)) : std::nullopt;
    }
}

LRESULT TextBoxInput::pass_on(const Lifeline::Watch& watch, const EditMessage& message, std::int16_t code) {
    if (!watch.alive() || code == 0) {
        return 0;
    }
    return edit_.pass_on({message.id, static_cast<std::uint16_t>(code), message.lparam});
}

LRESULT TextBoxInput::key_down(const EditMessage& message) {
    const Lifeline::Watch watch(lifeline_);
    auto code = static_cast<std::int16_t>(message.wparam);
    std::int16_t shift = shift_mask();
    if (listener_ != nullptr) {
        listener_->text_key_down(code, shift);
    }
    return pass_on(watch, message, code);
}

LRESULT TextBoxInput::key_up(const EditMessage& message) {
    const Lifeline::Watch watch(lifeline_);
    auto code = static_cast<std::int16_t>(message.wparam);
    std::int16_t shift = shift_mask();
    if (listener_ != nullptr) {
        listener_->text_key_up(code, shift);
    }
    return pass_on(watch, message, code);
}

// Characters beyond 16 bits arrive as two units, each a message of its own; unchanged ones go on as they
// came.
LRESULT TextBoxInput::character(const EditMessage& message) {
    const Lifeline::Watch watch(lifeline_);
    auto code = static_cast<std::int16_t>(message.wparam);
    if (listener_ != nullptr) {
        listener_->text_key_press(code);
    }
    return is_dialog_character(static_cast<std::uint16_t>(code)) ? 0 : pass_on(watch, message, code);
}

LRESULT TextBoxInput::mouse(const EditMessage& message) {
    const Lifeline::Watch watch(lifeline_);
    const HWND window = edit_.handle();
    // The focus comes before the event, so that a handler finds the text box in use already.
    if (message.id == WM_LBUTTONDOWN && GetFocus() != window) {
        SetFocus(window);
    }
    if (watch.alive() && listener_ != nullptr) {
        raise_mouse(message);
    }
    return watch.alive() ? edit_.pass_on(message) : 0;
}

void TextBoxInput::raise_mouse(const EditMessage& message) {
    MouseArguments mouse = mouse_arguments(message.id, message.wparam, message.lparam);
    if (is_button_down(message.id)) {
        listener_->text_mouse_down(mouse.button, mouse.shift, mouse.x, mouse.y);
    } else if (is_button_up(message.id)) {
        listener_->text_mouse_up(mouse.button, mouse.shift, mouse.x, mouse.y);
    } else {
        listener_->text_mouse_move(mouse.button, mouse.shift, mouse.x, mouse.y);
    }
}

LRESULT TextBoxInput::double_click(const EditMessage& message) {
    const Lifeline::Watch watch(lifeline_);
    if (listener_ != nullptr) {
        listener_->text_double_click();
    }
    return watch.alive() ? edit_.pass_on(message) : 0;
}

LRESULT TextBoxInput::got_focus(const EditMessage& message) {
    const Lifeline::Watch watch(lifeline_);
    const LRESULT result = edit_.pass_on(message);
    focus_.arrived_from(reinterpret_cast<HWND>(message.wparam));
    if (watch.alive() && listener_ != nullptr) {
        listener_->text_got_focus();
    }
    return result;
}

LRESULT TextBoxInput::lost_focus(const EditMessage& message) {
    const LRESULT result = edit_.pass_on(message);
    focus_.left_to(reinterpret_cast<HWND>(message.wparam));
    return result;
}

} // namespace vellora::win32
