#include "textfield/text_properties.h"

#include "runtime/checked.h"

#include <cstddef>

namespace vellora {

namespace {

// EC_LEFTMARGIN and EC_RIGHTMARGIN of winuser.h; the right margin travels in the high word.
constexpr std::uintptr_t left_margin = 1;
constexpr std::uintptr_t right_margin = 2;
constexpr std::int32_t high_word = 0x10000;

constexpr bool names_text_box(std::int32_t alignment) { return alignment >= 0 && alignment <= 2; }

} // namespace

TextProperties::TextProperties(ControlCore& core) : core_(core) {}

std::int32_t TextProperties::Alignment() const { return core_.state.mlAlignment; }

void TextProperties::put_Alignment(std::int32_t alignment) {
    const std::int32_t old_alignment = core_.state.mlAlignment;
    core_.state.mlAlignment = alignment;
    for (std::size_t element = 0; element < core_.parts.txtTextProperty.size(); ++element) {
        core_.parts.txtTextProperty[element]->set_visible(static_cast<std::int32_t>(element) == alignment);
    }
    carry_over(old_alignment);
    core_.property_changed(u"Alignment");
}

void TextProperties::carry_over(std::int32_t old_alignment) {
    const ChangedFlag ignore_change(core_.state.mbIgnoreChange, true);
    const ChangedFlag no_completion(core_.state.mbAutoComplete, false);
    TextBox& live = core_.live_text_box();
    live.set_locked(core_.state.mbLocked);
    live.set_enabled(core_.state.mbEnabled);
    if (names_text_box(old_alignment)) {
        live.set_text(core_.parts.txtTextProperty[static_cast<std::size_t>(old_alignment)]->text());
    }
}

std::int32_t TextProperties::MaxLength() const { return core_.state.mlMaxLength; }

void TextProperties::put_MaxLength(std::int32_t length) {
    core_.state.mlMaxLength = length;
    for (TextBox* text_box : core_.parts.txtTextProperty) {
        text_box->set_max_length(length);
    }
    core_.property_changed(u"MaxLength");
}

std::int32_t TextProperties::LeftMargin() const { return core_.state.mlLeftMargin; }

void TextProperties::put_LeftMargin(std::int32_t pixels) {
    core_.state.mlLeftMargin = pixels;
    send_margins(left_margin, pixels);
    core_.property_changed(u"LeftMargin");
}

std::int32_t TextProperties::RightMargin() const { return core_.state.mlRightMargin; }

void TextProperties::put_RightMargin(std::int32_t pixels) {
    core_.state.mlRightMargin = pixels;
    send_margins(right_margin, checked_multiply(pixels, high_word));
    core_.property_changed(u"RightMargin");
}

void TextProperties::send_margins(std::uintptr_t which, std::intptr_t value) {
    for (TextBox* text_box : core_.parts.txtTextProperty) {
        core_.user32.send_message(text_box->window(), message::edit_set_margins, which, value);
    }
}

bool TextProperties::Locked() const { return core_.state.mbLocked; }

void TextProperties::put_Locked(bool locked) {
    core_.state.mbLocked = locked;
    core_.live_text_box().set_locked(locked);
    core_.property_changed(u"Locked");
}

std::u16string TextProperties::SelText() const { return core_.live_text_box().selected_text(); }

void TextProperties::put_SelText(std::u16string_view text) {
    core_.live_text_box().set_selected_text(text);
    core_.property_changed(u"SelText");
}

std::int32_t TextProperties::SelStart() const { return core_.live_text_box().selection_start(); }

void TextProperties::put_SelStart(std::int32_t start) {
    core_.live_text_box().set_selection_start(start);
    core_.property_changed(u"SelStart");
}

std::int32_t TextProperties::SelLength() const { return core_.live_text_box().selection_length(); }

void TextProperties::put_SelLength(std::int32_t length) {
    core_.live_text_box().set_selection_length(length);
    core_.property_changed(u"SelLength");
}

} // namespace vellora
