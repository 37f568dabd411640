// A text box without a screen: text, selection and what a user does to them.
#pragma once

#include "support/headless/peer.h"
#include "widgets/text_box.h"

namespace vellora::test {

class HeadlessTextBox : public Peer<TextBox> {
public:
    using Peer::Peer;

    void listen(TextBoxListener* listener) override { listener_ = listener; }
    TextBoxListener* listener() const { return listener_; }

    std::u16string text() const override { return text_; }
    void set_text(std::u16string_view text) override;
    std::int32_t selection_start() const override { return start_; }
    std::int32_t selection_length() const override { return length_; }
    std::u16string selected_text() const override;
    void set_selection_start(std::int32_t start) override;
    void set_selection_length(std::int32_t length) override;
    void set_selected_text(std::u16string_view text) override;

    bool locked() const override { return locked_; }
    void set_locked(bool locked) override { locked_ = locked; }
    std::int32_t max_length() const override { return max_length_; }
    void set_max_length(std::int32_t length) override;
    FontRef font() const override { return font_; }
    void set_font(const FontRef& font) override { font_ = font; }
    OleColor fore_color() const override { return fore_color_; }
    void set_fore_color(OleColor color) override;
    OleColor back_color() const override { return back_color_; }
    void set_back_color(OleColor color) override;
    void focus() override;
    bool focused() const override { return desktop().focus() == window(); }

    /// Low and high word of the last EM_SETMARGINS for either side, -1 before the first.
    std::int32_t left_margin = -1;
    std::int32_t right_margin = -1;

    std::intptr_t handle_message(std::uint32_t message, std::uintptr_t wparam, std::intptr_t lparam) override;

private:
    std::int32_t text_length() const { return static_cast<std::int32_t>(text_.size()); }
    void change(std::u16string text, std::int32_t caret);

    TextBoxListener* listener_ = nullptr;
    std::u16string text_;
    std::int32_t start_ = 0;
    std::int32_t length_ = 0;
    bool locked_ = false;
    std::int32_t max_length_ = 0;
    FontRef font_;
    OleColor fore_color_ = 0x80000008;
    OleColor back_color_ = 0x80000005;
};

/// Error 380 for a number that is no colour.
void check_color(OleColor color);

} // namespace vellora::test
