#include "widgets/win32/whole_characters.h"

#include "runtime/utf16.h"
#include "widgets/win32/user_input.h"
#include "widgets/win32/wide_text.h"

namespace vellora::win32 {

namespace {

/// Whether a place in a text lies between the two halves of a character.
bool cut_at(const std::u16string& text, std::int32_t place) {
    const auto at = static_cast<std::size_t>(place);
    return place > 0 && at < text.size() && is_first_half(text[at - 1]) && is_second_half(text[at]);
}

void select(const EditWindow& edit, std::int32_t start, std::int32_t end) {
    edit.send(EM_SETSEL, static_cast<WPARAM>(start), end);
}

void select_character_around(const EditWindow& edit, std::int32_t place) {
    if (edit.selection().length() == 0 && !edit.locked() && cut_at(window_text(edit.handle()), place)) {
        select(edit, place - 1, place + 1);
    }
}

// A click between the halves means the end of the character; a selection grows by the halves it lacks.
void move_out(const EditWindow& edit, bool cut_start, bool cut_end) {
    const EditWindow::Selection now = edit.selection();
    const std::int32_t start = now.start - (cut_start ? 1 : 0);
    const std::int32_t end = now.end + (cut_end ? 1 : 0);
    select(edit, now.length() == 0 ? end : start, end);
}

} // namespace

void spare_no_half(const EditWindow& edit, const EditMessage& message) {
    if (message.id == WM_CHAR && message.wparam == VK_BACK) {
        select_character_around(edit, edit.selection().start - 1);
    } else if (message.id == WM_KEYDOWN && message.wparam == VK_DELETE && shift_mask() == 0) {
        select_character_around(edit, edit.selection().start + 1);
    }
}

void settle_caret(const EditWindow& edit, const EditMessage& message) {
    const bool arrow = message.id == WM_KEYDOWN && (message.wparam == VK_LEFT || message.wparam == VK_RIGHT);
    if (!arrow && message.id != WM_LBUTTONDOWN && message.id != WM_LBUTTONUP) {
        return;
    }
    const std::u16string text = window_text(edit.handle());
    const EditWindow::Selection now = edit.selection();
    const bool cut_start = cut_at(text, now.start);
    const bool cut_end = cut_at(text, now.end);
    if (arrow && (cut_start || cut_end)) {
        edit.pass_on(message); // on, out of the character, in the direction it goes
    } else if (cut_start || cut_end) {
        move_out(edit, cut_start, cut_end);
    }
}

} // namespace vellora::win32
