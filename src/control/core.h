// What every part of one control shares: its constituents, the state record, its host and the window system.
#pragma once

#include "control/state.h"
#include "host/events.h"
#include "host/site.h"
#include "host/surface.h"
#include "runtime/scoped_flag.h"
#include "widgets/check_button.h"
#include "widgets/frame.h"
#include "widgets/list_view.h"
#include "widgets/text_box.h"
#include "widgets/user32.h"

#include <array>
#include <string_view>

namespace vellora {

/// The child controls, by the names they have always had. They outlive the control that uses them.
struct Constituents {
    std::array<TextBox*, 3> txtTextProperty; // left, right, centred
    std::array<CheckButton*, 2> chkDropDown;
    ListView& ListView1;
    Frame& Frame1;
    Line& linLeft;
    Line& linRight;
    Line& linBottom;
    std::array<Label*, 2> lblShangle; // highlight and shadow half of the resize grip
};

struct ControlCore {
    Constituents parts;
    Surface& surface;
    Site& site;
    Events& events;
    User32& user32;
    ControlState state;

    /// The text box in use. Error 340 when the alignment names none.
    TextBox& live_text_box() const;

    /// Reports a property as changed, but not while the instance is being set up or loaded.
    void property_changed(std::u16string_view name);
    /// Error with this instance's name on its form as source.
    [[noreturn]] void raise(std::int32_t number, std::u16string_view description = {}) const;
};

} // namespace vellora
