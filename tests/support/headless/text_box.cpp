// The headless text box: limits, selection and notices as its interface promises them.
#include "support/headless/text_box.h"

#include "runtime/host_error.h"
#include "runtime/utf16.h"
#include "widgets/user32.h"

#include <algorithm>
#include <utility>

namespace vellora::test {

namespace {

void check_not_negative(std::int32_t value) {
    if (value < 0) {
        throw HostError(error_number::invalid_property_value);
    }
}

/// Nothing from the first zero unit on, no more than there is room for, and no half of a character.
std::u16string_view accepted_part(std::u16string_view text, std::size_t room) {
    return beginning_of(text.substr(0, text.find(u'\0')), room);
}

} // namespace

void check_color(OleColor color) {
    const bool system_color = (color & 0xFFFFFF00U) == 0x80000000U;
    if (color > 0x02FFFFFFU && !system_color) {
        throw HostError(error_number::invalid_property_value);
    }
}

void HeadlessTextBox::set_text(std::u16string_view text) {
    const std::u16string_view accepted =
        accepted_part(text, max_length_ > 0 ? static_cast<std::size_t>(max_length_) : text.size());
    if (accepted != text_) {
        change(std::u16string(accepted), 0);
    }
}

void HeadlessTextBox::change(std::u16string text, std::int32_t caret) {
    text_ = std::move(text);
    start_ = caret;
    length_ = 0;
    if (listener_ != nullptr) {
        listener_->text_changed();
    }
}

std::u16string HeadlessTextBox::selected_text() const {
    return text_.substr(static_cast<std::size_t>(start_), static_cast<std::size_t>(length_));
}

void HeadlessTextBox::set_selection_start(std::int32_t start) {
    check_not_negative(start);
    start_ = std::min(start, text_length());
    length_ = 0;
}

void HeadlessTextBox::set_selection_length(std::int32_t length) {
    check_not_negative(length);
    length_ = std::min(length, text_length() - start_);
}

void HeadlessTextBox::set_selected_text(std::u16string_view text) {
    std::u16string whole = text_;
    const std::size_t kept = text_.size() - static_cast<std::size_t>(length_);
    const auto limit = static_cast<std::size_t>(max_length_);
    text = accepted_part(text, max_length_ == 0 ? text.size() : limit - std::min(kept, limit));
    whole.replace(static_cast<std::size_t>(start_), static_cast<std::size_t>(length_), text);
    const auto caret = start_ + static_cast<std::int32_t>(text.size());
    if (whole == text_) {
        start_ = caret;
        length_ = 0;
        return;
    }
    change(std::move(whole), caret);
}

void HeadlessTextBox::set_max_length(std::int32_t length) {
    check_not_negative(length);
    max_length_ = length;
}

void HeadlessTextBox::set_fore_color(OleColor color) {
    check_color(color);
    fore_color_ = color;
}

void HeadlessTextBox::set_back_color(OleColor color) {
    check_color(color);
    back_color_ = color;
}

void HeadlessTextBox::focus() {
    if (!visible() || !enabled()) {
        throw HostError(error_number::invalid_procedure_call);
    }
    desktop().set_focus(window());
}

std::intptr_t HeadlessTextBox::handle_message(std::uint32_t message, std::uintptr_t wparam,
                                              std::intptr_t lparam) {
    if (message == got_focus_message && listener_ != nullptr) {
        listener_->text_got_focus();
    }
    if (message == message::edit_set_margins) {
        const auto margins = static_cast<std::uint32_t>(lparam);
        if ((wparam & 1U) != 0) {
            left_margin = static_cast<std::int32_t>(margins & 0xFFFFU);
        }
        if ((wparam & 2U) != 0) {
            right_margin = static_cast<std::int32_t>(margins >> 16U);
        }
    }
    return 0;
}

} // namespace vellora::test
