#include "control/control_object.h"

#include "control/appearance.h"
#include "runtime/checked.h"
#include "runtime/host_error.h"
#include "runtime/system_colors.h"
#include "textfield/text_properties.h"

namespace vellora {

namespace {

// Marlett, the platform's symbol font, draws the two halves of a resize grip for these letters.
constexpr std::u16string_view symbol_font = u"Marlett";
constexpr float grip_points = 12;

template <typename Step> void attempt(Step step) {
    try {
        step();
    } catch (...) {
        // A new control comes up with whatever its host allows.
    }
}

} // namespace

ControlObject::ControlObject(ControlCore& core, TextProperties& text_properties, Appearance& appearance)
    : core_(core), text_properties_(text_properties), appearance_(appearance) {}

void ControlObject::Initialize() {
    core_.state.miTwipsPerPixelX = to_integer(static_cast<double>(core_.surface.twips_per_pixel_x()));
    core_.state.miTwipsPerPixelY = to_integer(static_cast<double>(core_.surface.twips_per_pixel_y()));
    core_.parts.chkDropDown[0]->set_visible(true);
    core_.parts.chkDropDown[1]->set_visible(false);
    prepare_grip(0, system_color::button_highlight, u"o");
    prepare_grip(1, system_color::button_shadow, u"p");
    Bounds frame = core_.parts.Frame1.bounds();
    frame.height = core_.parts.lblShangle[0]->height();
    core_.parts.Frame1.move(frame);
    core_.parts.Frame1.set_back_color(system_color::button_face);
    core_.parts.Frame1.set_visible(false);
}

void ControlObject::prepare_grip(std::size_t element, OleColor color, std::u16string_view glyph) {
    Label& label = *core_.parts.lblShangle[element];
    label.set_fore_color(color);
    label.set_font(symbol_font, grip_points);
    label.set_caption(glyph);
}

void ControlObject::InitProperties() {
    const RaisedFlag loading(core_.state.mbLoadingProperties);
    reset_state();
    attempt([&] { text_properties_.put_MaxLength(0); });
    core_.state.mbGridLines = false;
    core_.state.mbShowItemToolTips = false;
    attempt([&] { text_properties_.put_Alignment(0); });
    attempt([&] { text_properties_.put_LeftMargin(margin_of_font); });
    attempt([&] { appearance_.putref_Font(core_.site.ambient_font()); });
    core_.state.mlBackColor = system_color::window;
    core_.state.mbCheckBoxes = false;
    core_.state.mlButtonForeColor = system_color::button_text;
    core_.state.mlButtonBackColor = system_color::button_face;
    core_.state.mbAllowResize = false;
    attempt([&] { show_own_name(); });
    attempt([&] { core_.parts.chkDropDown[1]->set_value(1); });
    core_.state.mlButtonStyle = vlNormal;
    attempt([&] { Refresh(); });
}

void ControlObject::reset_state() {
    ControlState& state = core_.state;
    state.miColumns = 1;
    state.mbEnabled = true;
    std::int16_t first_column = 1;
    subResetColumns(state, first_column);
    state.mlAlignment = 0;
    state.msngDropDownHeight = 8;
    state.mlListIndex = -1;
    state.mlSortOrder = vlAscending;
    state.mbSorted = false;
    state.mbHideColumnHeaders = false;
    state.miTextColumn = 1;
    state.miSortColumn = 1;
    state.mlLeftMargin = 0;
    state.mlRightMargin = 0;
    state.mbAutoHeight = true;
    state.mbAllowColumnReorder = false;
    state.mbAutoComplete = false;
    state.mlAutoSize = vlNone;
    state.mlDropDownAlignment = vlDDLeft;
    state.msngDropDownWidthOffset = 0;
}

void ControlObject::show_own_name() {
    const std::u16string name = core_.site.display_name();
    write_text_silently(name);
}

std::u16string ControlObject::Text() const { return core_.live_text_box().text(); }

void ControlObject::put_Text(std::u16string_view text) {
    if (!writing_text_ && (core_.state.mbLoadingProperties || may_change_text())) {
        write_text(text);
    }
}

bool ControlObject::may_change_text() { return core_.site.may_change(u"Text"); }

void ControlObject::write_text(std::u16string_view text) {
    if (writing_text_) {
        return;
    }
    const RaisedFlag writing(writing_text_);
    core_.live_text_box().set_text(text);
    core_.property_changed(u"Text");
}

void ControlObject::write_text_silently(std::u16string_view text) {
    const RaisedFlag ignore(core_.state.mbIgnoreChange);
    write_text(text);
}

WindowHandle ControlObject::hWnd() const { return core_.surface.window(); }

WindowHandle ControlObject::ContainerHwnd() const { return core_.site.container_window(); }

void ControlObject::Refresh() {
    core_.surface.refresh();
    core_.state.mbListDirty = false;
}

} // namespace vellora
