#include "widgets/win32/text_box_input.h"

#include "runtime/utf16.h"
#include "widgets/win32/user_input.h"
#include "widgets/win32/whole_characters.h"

#include <utility>

namespace vellora::win32 {

namespace {

constexpr char16_t select_all = 0x01;        // Ctrl+A
constexpr char16_t control_backspace = 0x7F; // the platform would type it as a box

// A single-line field has no use for these and would beep; what they mean is the form's business.
bool types_nothing(char16_t unit) {
    return unit == u'\t' || unit == u'\n' || unit == u'\r' || unit == VK_ESCAPE || unit == control_backspace;
}

/// Whether the platform may change the text on a message. Ctrl+V and its like come back as commands.
bool changes_text(const EditMessage& message) {
    switch (message.id) {
    case WM_CHAR:
        return message.wparam >= L' ' || message.wparam == VK_BACK;
    case WM_KEYDOWN:
        return message.wparam == VK_DELETE;
    case WM_CUT:
    case WM_PASTE:
    case WM_CLEAR:
    case WM_UNDO:
    case EM_UNDO:
    case WM_IME_STARTCOMPOSITION:
    case WM_IME_COMPOSITION:
        return true;
    default:
        return false;
    }
}

} // namespace

bool TextBoxInput::refuses(const EditMessage& message) {
    return listener_ != nullptr && changes_text(message) && !edit_.locked() &&
           !listener_->text_may_change();
}

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
    case WM_UNICHAR:
        return whole_character(message);
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
    case WM_CUT:
    case WM_CLEAR:
    case WM_UNDO:
    case EM_UNDO:
        return edit_command(message);
    default:
        return button_of(message.id) != 0 ? std::optional(mouse(message)) : std::nullopt;
    }
}

LRESULT TextBoxInput::pass_on(const Lifeline::Watch& watch, const EditMessage& message, std::int16_t code) {
    if (!watch.alive() || code == 0) {
        return 0;
    }
    const EditMessage passed{message.id, static_cast<std::uint16_t>(code), message.lparam};
    const bool refused = refuses(passed);
    return refused || !watch.alive() ? 0 : act(watch, passed);
}

LRESULT TextBoxInput::act(const Lifeline::Watch& watch, const EditMessage& message) {
    spare_no_half(edit_, message);
    const LRESULT result = edit_.pass_on(message);
    if (watch.alive()) {
        settle_caret(edit_, message);
    }
    return result;
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

LRESULT TextBoxInput::character(const EditMessage& message) {
    const Lifeline::Watch watch(lifeline_);
    auto code = static_cast<std::int16_t>(message.wparam);
    if (listener_ != nullptr) {
        listener_->text_key_press(code);
    }
    if (!watch.alive() || take_half(static_cast<char16_t>(code))) {
        return 0;
    }
    const auto unit = static_cast<char16_t>(code);
    if (unit == select_all) {
        edit_.send(EM_SETSEL, 0, -1);
        return 0;
    }
    return types_nothing(unit) ? 0 : pass_on(watch, message, code);
}

// Characters beyond 16 bits arrive as two units, each a message of its own. They go into the text together:
// nobody is to see, complete or cut half a character. A half without the other is nothing.
bool TextBoxInput::take_half(char16_t unit) {
    const char16_t first = std::exchange(first_half_, is_first_half(unit) ? unit : u'\0');
    if (first != 0 && is_second_half(unit)) {
        type_pair(first, unit);
    }
    return is_first_half(unit) || is_second_half(unit);
}

// The platform's own limit counts units, and would let half a character in.
void TextBoxInput::type_pair(char16_t first, char16_t second) {
    const Lifeline::Watch watch(lifeline_);
    const bool refused = edit_.locked() || edit_.room() < 2 || refuses({WM_CHAR, second, 0});
    if (!refused && watch.alive()) {
        const char16_t pair[] = {first, second, 0};
        edit_.send(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(pair));
    }
}

// Programs that type for the user send a character as one number.
LRESULT TextBoxInput::whole_character(const EditMessage& message) {
    if (message.wparam == UNICODE_NOCHAR) {
        return TRUE;
    }
    const Lifeline::Watch watch(lifeline_);
    for (const char16_t unit : to_utf16(static_cast<char32_t>(message.wparam))) {
        if (watch.alive()) {
            edit_.send(WM_CHAR, unit, message.lparam);
        }
    }
    return 0;
}

LRESULT TextBoxInput::edit_command(const EditMessage& message) {
    const Lifeline::Watch watch(lifeline_);
    const bool refused = refuses(message);
    return refused || !watch.alive() ? 0 : edit_.pass_on(message);
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
    return watch.alive() ? act(watch, message) : 0;
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
