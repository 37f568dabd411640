// What the user does in an edit field, as the events of a text box.
#pragma once

#include "widgets/text_box.h"
#include "widgets/win32/edit_window.h"
#include "widgets/win32/focus_tracker.h"
#include "widgets/win32/lifeline.h"

#include <optional>

namespace vellora::win32 {

class TextBoxInput {
public:
    TextBoxInput(const EditWindow& edit, FocusTracker& focus) : edit_(edit), focus_(focus) {}

    void listen(TextBoxListener* listener) { listener_ = listener; }
    /// The answer to a message of the keyboard, the mouse or the focus, nothing for any other. The listener
    /// may end the text box meanwhile.
    std::optional<LRESULT> answer(const EditMessage& message);
    /// Whether the listener forbids what the message would do to the text.
    bool refuses(const EditMessage& message);

private:
    LRESULT key_down(const EditMessage& message);
    LRESULT key_up(const EditMessage& message);
    LRESULT character(const EditMessage& message);
    LRESULT whole_character(const EditMessage& message);
    bool take_half(char16_t unit);
    void type_pair(char16_t first, char16_t second);
    LRESULT edit_command(const EditMessage& message);
    LRESULT mouse(const EditMessage& message);
    LRESULT double_click(const EditMessage& message);
    LRESULT got_focus(const EditMessage& message);
    LRESULT lost_focus(const EditMessage& message);
    void raise_mouse(const EditMessage& message);
    /// Nothing is passed on for a code of 0, nor by a text box that the listener ended.
    LRESULT pass_on(const Lifeline::Watch& watch, const EditMessage& message, std::int16_t code);
    LRESULT act(const Lifeline::Watch& watch, const EditMessage& message);

    const EditWindow& edit_;
    FocusTracker& focus_;
    TextBoxListener* listener_ = nullptr;
    Lifeline lifeline_;
    char16_t first_half_ = 0; // of a character whose second half is still to come
};

} // namespace vellora::win32
