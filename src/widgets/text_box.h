// A single-line text box.
#pragma once

#include "widgets/font.h"
#include "widgets/widget.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace vellora {

/// What a text box raises. Arguments passed by reference go back to the text box: a key code or
/// character set to 0 is swallowed.
class TextBoxListener {
public:
    virtual void text_key_down(std::int16_t& key_code, std::int16_t& shift) = 0;
    virtual void text_key_press(std::int16_t& key_ascii) = 0;
    virtual void text_key_up(std::int16_t& key_code, std::int16_t& shift) = 0;
    /// Asked before the user changes the text; false leaves it as it is.
    virtual bool text_may_change() = 0;
    virtual void text_changed() = 0;
    /// Button 1 left, 2 right, 4 middle (a mask of them for moves); shift 1 Shift, 2 Ctrl, 4 Alt; twips.
    virtual void text_mouse_down(std::int16_t& button, std::int16_t& shift, float& x, float& y) = 0;
    virtual void text_mouse_move(std::int16_t& button, std::int16_t& shift, float& x, float& y) = 0;
    virtual void text_mouse_up(std::int16_t& button, std::int16_t& shift, float& x, float& y) = 0;
    virtual void text_double_click() = 0;
    virtual void text_got_focus() = 0;

protected:
    ~TextBoxListener() = default;
};

/// Lengths and positions of text count UTF-16 units.
class TextBox : public Widget {
public:
    virtual void listen(TextBoxListener* listener) = 0;

    virtual std::u16string text() const = 0;
    /// Raises text_changed, but not when the text is already there. Cut off at the first zero unit and at
    /// the maximal length.
    virtual void set_text(std::u16string_view text) = 0;

    virtual std::int32_t selection_start() const = 0;
    virtual std::int32_t selection_length() const = 0;
    virtual std::u16string selected_text() const = 0;
    /// Error 380 for a negative value; positions beyond the text mean its end.
    virtual void set_selection_start(std::int32_t start) = 0;
    virtual void set_selection_length(std::int32_t length) = 0;
    /// Replaces the selection, also an empty one; the caret stands behind it afterwards.
    virtual void set_selected_text(std::u16string_view text) = 0;

    virtual bool locked() const = 0;
    virtual void set_locked(bool locked) = 0;
    virtual std::int32_t max_length() const = 0;
    /// 0 for no limit. Error 380 for a negative value.
    virtual void set_max_length(std::int32_t length) = 0;

    virtual FontRef font() const = 0;
    virtual void set_font(const FontRef& font) = 0;
    virtual OleColor fore_color() const = 0;
    /// Error 380 for a number that is no colour.
    virtual void set_fore_color(OleColor color) = 0;
    virtual OleColor back_color() const = 0;
    virtual void set_back_color(OleColor color) = 0;

    /// Error 5 when the text box cannot take the focus (invisible or disabled).
    virtual void focus() = 0;
    virtual bool focused() const = 0;
};

} // namespace vellora
