#include "textfield/text_properties.h"

#include "runtime/checked.h"
#include "runtime/host_error.h"

#include <cstddef>
#include <utility>

namespace vellora {

namespace {

// EC_LEFTMARGIN and EC_RIGHTMARGIN of winuser.h; the right margin travels in the high word.
constexpr std::uintptr_t left_margin = 1;
constexpr std::uintptr_t right_margin = 2;
constexpr std::int32_t high_word = 0x10000;

constexpr bool names_text_box(std::int32_t alignment) { return alignment >= 0 && alignment <= 2; }

void pass_focus_to(TextBox& text_box) {
    try {
        text_box.focus();
    } catch (const HostError&) {
        // A text box that cannot have it leaves the focus to the window system.
    }
}

} // namespace

TextProperties::TextProperties(ControlCore& core) : core_(core) {}

std::int32_t TextProperties::Alignment() const { return core_.state.mlAlignment; }

void TextProperties::put_Alignment(std::int32_t alignment) {
    const std::int32_t old_alignment = std::exchange(core_.state.mlAlignment, alignment);
    if (!names_text_box(alignment)) {
        hide_all_but(nullptr);
        throw HostError(error_number::control_array_element_missing);
    }
    show_live(old_alignment);
    hide_all_but(&core_.live_text_box());
    core_.property_changed(u"Alignment");
}

// The live text box comes before the old one goes: a focus without a text box to be in would fall to the surface, and
// what the user types next would be lost.
void TextProperties::show_live(std::int32_t old_alignment) {
    const bool focused = names_text_box(old_alignment) && text_box(old_alignment).focused();
    TextBox& live = core_.live_text_box();
    carry_over(old_alignment);
    live.set_visible(true);
    if (focused) {
        pass_focus_to(live);
    }
}

void TextProperties::hide_all_but(const TextBox* shown) {
    for (TextBox* text_box : core_.parts.txtTextProperty) {
        if (text_box != shown) {
            text_box->set_visible(false);
        }
    }
}

TextBox& TextProperties::text_box(std::int32_t alignment) const {
    return *core_.parts.txtTextProperty[static_cast<std::size_t>(alignment)];
}

void TextProperties::carry_over(std::int32_t old_alignment) {
    const ChangedFlag ignore_change(core_.state.mbIgnoreChange, true);
    const ChangedFlag no_completion(core_.state.mbAutoComplete, false);
    TextBox& live = core_.live_text_box();
    live.set_locked(core_.state.mbLocked);
    live.set_enabled(core_.state.mbEnabled);
    if (names_text_box(old_alignment)) {
        live.set_text(text_box(old_alignment).text());
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
    if (!core_.site.may_change(u"Text")) {
        return;
    }
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
