#include "control/layout.h"

#include "runtime/checked.h"

namespace vellora {

namespace {

// Four pixels above and below the text, as the platform's own single-line fields have it. Vertical distances
// follow the horizontal resolution too, so that a field looks the same whatever the vertical one is.
constexpr std::int16_t padding_pixels = 4;
constexpr std::uint32_t frame_style_bit = 0x100;

} // namespace

Layout::Layout(ControlCore& core) : core_(core) {}

void Layout::Resize() {
    if (!core_.state.mbInResize) {
        core_.state.mbInResize = true;
        lay_out();
        core_.state.mbSizedOnce = true;
        core_.state.mbInResize = false;
    }
    mark_frame_style();
}

void Layout::lay_out() {
    const auto pixel = static_cast<float>(core_.state.miTwipsPerPixelX);
    const bool keep_height = core_.state.mbSizedOnce && !core_.state.mbAutoHeight;
    const float automatic = automatic_height();
    const float height = keep_height ? core_.surface.height() : automatic;
    const float button_width =
        pixel * static_cast<float>(core_.user32.system_metric(system_metric::scroll_bar_thumb_width));
    place_text_boxes(core_.surface.client_width() - button_width, height);
    place_buttons(button_width, height);
    core_.surface.set_height(height);
}

float Layout::automatic_height() const {
    const auto padding =
        static_cast<float>(checked_multiply(padding_pixels, core_.state.miTwipsPerPixelX));
    return core_.surface.text_height(u"yY") + padding + padding;
}

void Layout::place_text_boxes(float width, float height) {
    const auto pixel = static_cast<float>(core_.state.miTwipsPerPixelX);
    const auto both_sides =
        static_cast<float>(checked_multiply(std::int16_t{2}, core_.state.miTwipsPerPixelX));
    TextBox& first = *core_.parts.txtTextProperty[0];
    first.move({pixel, pixel, width - both_sides, height});
    const Bounds taken = first.bounds();
    core_.parts.txtTextProperty[1]->move(taken);
    core_.parts.txtTextProperty[2]->move(taken);
}

void Layout::place_buttons(float width, float height) {
    const auto gap = static_cast<float>(checked_multiply(std::int16_t{2}, core_.state.miTwipsPerPixelX));
    const auto padding =
        static_cast<float>(checked_multiply(padding_pixels, core_.state.miTwipsPerPixelX));
    CheckButton& first = *core_.parts.chkDropDown[0];
    first.move({core_.live_text_box().bounds().width + gap, 0, width, height - padding});
    core_.parts.chkDropDown[1]->move(first.bounds());
}

void Layout::mark_frame_style() {
    const WindowHandle frame = core_.parts.Frame1.window();
    core_.user32.set_style(frame, core_.user32.style(frame) | frame_style_bit);
}

bool Layout::AutoHeight() const { return core_.state.mbAutoHeight; }

void Layout::put_AutoHeight(bool value) {
    if (value == core_.state.mbAutoHeight) {
        return;
    }
    core_.state.mbAutoHeight = value;
    if (!core_.state.mbLoadingProperties) {
        Resize();
        core_.property_changed(u"AutoHeight");
    }
}

} // namespace vellora
