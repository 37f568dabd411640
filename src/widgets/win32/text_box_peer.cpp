#include "widgets/win32/text_box_peer.h"

#include "runtime/host_error.h"
#include "runtime/scoped_flag.h"
#include "runtime/utf16.h"
#include "widgets/win32/reflection.h"
#include "widgets/win32/wide_text.h"

#include <imm.h>

#include <algorithm>

namespace vellora::win32 {

namespace {

void check_not_negative(std::int32_t value) {
    if (value < 0) {
        throw HostError(error_number::invalid_property_value);
    }
}

/// What a text box takes of a text: nothing from the first zero unit on, no more than there is room for, and
/// no half of a character.
std::u16string accepted_part(std::u16string_view text, std::size_t room) {
    return std::u16string(beginning_of(text.substr(0, text.find(u'\0')), room));
}

} // namespace

TextBoxPeer::TextBoxPeer(SurfaceWindow& surface, TextAlignment alignment)
    : surface_(surface), alignment_(alignment), edit_(surface.handle(), alignment, *this),
      input_(edit_, surface.focus_tracker()) {
    font_.set(nullptr);
}

TextFace TextBoxPeer::face() const {
    const auto margins = static_cast<DWORD>(edit_.send(EM_GETMARGINS));
    return {window_place(edit_.handle()),
            text(),
            alignment_,
            font_.handle(),
            fore_color_,
            back_color_,
            enabled(),
            LOWORD(margins),
            HIWORD(margins)};
}

void TextBoxPeer::listen(TextBoxListener* listener) {
    listener_ = listener;
    input_.listen(listener);
}

std::u16string TextBoxPeer::text() const {
    return edit_.handle() != nullptr ? window_text(edit_.handle()) : known_text_;
}

void TextBoxPeer::set_text(std::u16string_view text) {
    const std::size_t room = max_length_ > 0 ? static_cast<std::size_t>(max_length_) : text.size();
    const std::u16string accepted = accepted_part(text, room);
    if (accepted == this->text()) {
        return;
    }
    const Lifeline::Watch watch(lifeline_);
    SetWindowTextW(edit_.handle(), wide(accepted));
    if (watch.alive()) {
        note_change();
    }
}

std::u16string TextBoxPeer::selected_text() const {
    const EditWindow::Selection now = edit_.selection();
    const std::u16string whole = text();
    const auto start = std::min(static_cast<std::size_t>(now.start), whole.size());
    return whole.substr(start, static_cast<std::size_t>(now.length()));
}

void TextBoxPeer::set_selection_start(std::int32_t start) {
    check_not_negative(start);
    const std::int32_t place = std::min(start, GetWindowTextLengthW(edit_.handle()));
    edit_.send(EM_SETSEL, static_cast<WPARAM>(place), place);
    edit_.send(EM_SCROLLCARET);
}

// The view stays where it is: selecting a long text whole must not scroll its beginning away. Where the
// platform moves it to the end of a selection, the selection is made from there to its beginning.
void TextBoxPeer::set_selection_length(std::int32_t length) {
    check_not_negative(length);
    const std::int32_t start = selection_start();
    const std::int32_t rest = std::max(0, GetWindowTextLengthW(edit_.handle()) - start);
    const std::int32_t end = start + std::min(length, rest);
    const LRESULT view = first_visible_character();
    edit_.send(EM_SETSEL, static_cast<WPARAM>(start), end);
    if (first_visible_character() != view) {
        edit_.send(EM_SETSEL, static_cast<WPARAM>(end), start);
    }
}

LRESULT TextBoxPeer::first_visible_character() const {
    return edit_.send(EM_GETFIRSTVISIBLELINE);
}

void TextBoxPeer::set_selected_text(std::u16string_view text) {
    const std::u16string accepted = accepted_part(text, static_cast<std::size_t>(edit_.room()));
    edit_.send(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(accepted.c_str()));
}

void TextBoxPeer::set_locked(bool locked) {
    edit_.send(EM_SETREADONLY, locked);
}

void TextBoxPeer::set_max_length(std::int32_t length) {
    check_not_negative(length);
    max_length_ = length;
    edit_.send(EM_SETLIMITTEXT, static_cast<WPARAM>(length));
}

void TextBoxPeer::set_fore_color(OleColor color) {
    fore_color_ = checked_color(color);
    redraw(edit_.handle());
}

void TextBoxPeer::set_back_color(OleColor color) {
    back_color_ = checked_color(color);
    redraw(edit_.handle());
}

void TextBoxPeer::focus() {
    const HWND window = edit_.handle();
    if (!IsWindowVisible(window) || !IsWindowEnabled(window) || !IsWindowEnabled(GetParent(window))) {
        throw HostError(error_number::invalid_procedure_call);
    }
    SetFocus(window);
}

LRESULT TextBoxPeer::edit_message(const EditMessage& message) {
    switch (message.id) {
    case OCM_CTLCOLOREDIT:
    case OCM_CTLCOLORSTATIC:
        return set_colors(reinterpret_cast<HDC>(message.wparam));
    case OCM_COMMAND:
        if (HIWORD(message.wparam) == EN_CHANGE) {
            note_change();
        }
        return 0;
    case WM_GETOBJECT:
        return describe(message);
    case WM_IME_STARTCOMPOSITION:
    case WM_IME_COMPOSITION:
    case WM_IME_ENDCOMPOSITION:
        return compose(message);
    case WM_PASTE:
        return paste(message);
    case EM_SETMARGINS:
        return margins_.set(message);
    case WM_SIZE:
        return resize(message);
    default: {
        const auto answer = input_.answer(message);
        return answer ? *answer : edit_.pass_on(message);
    }
    }
}

// The field of a combo box goes by the name of the combo box.
LRESULT TextBoxPeer::describe(const EditMessage& message) {
    const LRESULT own = surface_.accessible_object(edit_.handle(), message.wparam, message.lparam);
    return own != 0 ? own : edit_.pass_on(message);
}

LRESULT TextBoxPeer::set_colors(HDC dc) {
    SetTextColor(dc, to_color_ref(fore_color_));
    SetBkColor(dc, to_color_ref(back_color_));
    return reinterpret_cast<LRESULT>(background_.get(back_color_));
}

// Some platforms show what an input method composes in the field itself. It is the user's text only when it
// is done: until then nobody hears of it, or a completion would write into the middle of a composition.
LRESULT TextBoxPeer::compose(const EditMessage& message) {
    const Lifeline::Watch watch(lifeline_);
    if (input_.refuses(message) || !watch.alive()) {
        return 0;
    }
    const LRESULT result = pass_on_quietly(message);
    const bool done = message.id == WM_IME_ENDCOMPOSITION || (message.lparam & GCS_RESULTSTR) != 0;
    if (watch.alive() && done) {
        note_change();
    }
    return result;
}

// The platform cuts what it pastes at the limit, if need be through the middle of a character.
LRESULT TextBoxPeer::paste(const EditMessage& message) {
    const Lifeline::Watch watch(lifeline_);
    if (input_.refuses(message) || !watch.alive()) {
        return 0;
    }
    const LRESULT result = pass_on_quietly(message);
    if (watch.alive()) {
        drop_half_character();
        note_change();
    }
    return result;
}

// Pasting may ask the host for what it put on the clipboard, and that may end the text box.
LRESULT TextBoxPeer::pass_on_quietly(const EditMessage& message) {
    const Lifeline::Watch watch(lifeline_);
    quiet_ = true;
    const LRESULT result = edit_.pass_on(message);
    if (watch.alive()) {
        quiet_ = false;
    }
    return result;
}

void TextBoxPeer::drop_half_character() {
    const std::u16string whole = text();
    const auto caret = static_cast<std::size_t>(selection_start());
    if (caret == 0 || caret > whole.size() || !is_first_half(whole[caret - 1]) ||
        (caret < whole.size() && is_second_half(whole[caret]))) {
        return;
    }
    const RaisedFlag quiet(quiet_);
    edit_.send(EM_SETSEL, caret - 1, static_cast<LPARAM>(caret));
    edit_.send(EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(L""));
}

// The platform reports a change also when the text was replaced by the same one.
void TextBoxPeer::note_change() {
    std::u16string now = text();
    if (quiet_ || now == known_text_) {
        return;
    }
    known_text_ = std::move(now);
    if (listener_ != nullptr) {
        listener_->text_changed();
    }
}

// Margins that follow the font depend on the field's width too.
LRESULT TextBoxPeer::resize(const EditMessage& message) {
    const LRESULT result = edit_.pass_on(message);
    margins_.restore();
    return result;
}

// The platform resets the margins with every font.
void TextBoxPeer::apply_font(HFONT font) {
    edit_.send(WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    margins_.restore();
}

} // namespace vellora::win32
