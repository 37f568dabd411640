#include "control/appearance.h"

#include "runtime/host_error.h"

namespace vellora {

Appearance::Appearance(ControlCore& core) : core_(core) {}

bool Appearance::Enabled() const { return core_.state.mbEnabled; }

void Appearance::put_Enabled(bool value) {
    core_.state.mbEnabled = value;
    core_.live_text_box().set_enabled(value);
    if (core_.site.user_mode()) {
        for (CheckButton* button : core_.parts.chkDropDown) {
            button->set_enabled(value);
        }
        core_.surface.set_enabled(value);
    }
    core_.property_changed(u"Enabled");
}

FontRef Appearance::Font() const { return core_.state.moFont; }

void Appearance::putref_Font(const FontRef& font) {
    if (!font) {
        throw HostError(error_number::invalid_property_value);
    }
    core_.state.moFont = font;
    core_.live_text_box().set_font(font);
    core_.surface.set_font(font);
    core_.parts.ListView1.set_font(font);
    core_.property_changed(u"Font");
}

OleColor Appearance::ForeColor() const { return core_.live_text_box().fore_color(); }

void Appearance::put_ForeColor(OleColor color) {
    core_.live_text_box().set_fore_color(color);
    core_.property_changed(u"ForeColor");
}

OleColor Appearance::BackColor() const { return core_.state.mlBackColor; }

void Appearance::put_BackColor(OleColor color) {
    core_.state.mlBackColor = color;
    core_.surface.set_back_color(color);
    core_.live_text_box().set_back_color(color);
    core_.property_changed(u"BackColor");
}

OleColor Appearance::ButtonForeColor() const { return core_.state.mlButtonForeColor; }

void Appearance::put_ButtonForeColor(OleColor color) {
    core_.state.mlButtonForeColor = color;
    for (CheckButton* button : core_.parts.chkDropDown) {
        button->set_fore_color(color);
    }
    core_.property_changed(u"ButtonForeColor");
}

OleColor Appearance::ButtonBackColor() const { return core_.state.mlButtonBackColor; }

void Appearance::put_ButtonBackColor(OleColor color) {
    core_.state.mlButtonBackColor = color;
    for (CheckButton* button : core_.parts.chkDropDown) {
        button->set_back_color(color);
    }
    core_.parts.Frame1.set_back_color(color);
    core_.property_changed(u"ButtonBackColor");
}

std::int32_t Appearance::ButtonStyle() const { return core_.state.mlButtonStyle; }

void Appearance::put_ButtonStyle(std::int32_t style) {
    if (core_.site.user_mode() && !core_.state.mbLoadingProperties) {
        core_.raise(error_number::set_not_supported_at_run_time);
    }
    core_.state.mlButtonStyle = style;
    core_.property_changed(u"ButtonStyle");
}

PictureRef Appearance::Picture() const { return core_.parts.ListView1.picture(); }

void Appearance::putref_Picture(const PictureRef& picture) {
    if (!core_.site.user_mode()) {
        return;
    }
    core_.parts.ListView1.set_picture(picture);
    if (!core_.state.mbLoadingProperties) {
        core_.state.mbListDirty = true;
        core_.property_changed(u"Picture");
    }
}

bool Appearance::GridLines() const { return core_.state.mbGridLines; }

void Appearance::put_GridLines(bool value) {
    core_.state.mbGridLines = value;
    core_.parts.ListView1.set_grid_lines(value);
    core_.property_changed(u"GridLines");
}

} // namespace vellora
