// One control: its state record and the parts that work on it, each with one job. Whoever wires a control up gives it
// constituents, a host and the window system, and gets the public members by subsystem.
#pragma once

#include "columns/column_auto_size.h"
#include "columns/column_order.h"
#include "columns/column_set.h"
#include "columns/header_icons.h"
#include "control/about.h"
#include "control/accessibility.h"
#include "control/appearance.h"
#include "control/control_object.h"
#include "control/core.h"
#include "control/layout.h"
#include "control/persistence.h"
#include "dropdown/clsMsgHandler.h"
#include "dropdown/drop_down.h"
#include "dropdown/floating_window.h"
#include "dropdown/list_keys.h"
#include "dropdown/list_messages.h"
#include "dropdown/placement.h"
#include "dropdown/resize_frame.h"
#include "dropdown/resize_grip.h"
#include "items/check_boxes.h"
#include "items/item_store.h"
#include "items/selection.h"
#include "items/sort_and_search.h"
#include "textfield/text_field.h"
#include "textfield/text_properties.h"

#include <memory>

namespace vellora {

class FormWatch;
class modMessageHandler;

/// What a control needs from outside. Everything outlives the control.
struct ControlEnvironment {
    Constituents constituents;
    Surface& surface;
    Site& site;
    Events& events;
    User32& user32;
    FormWatch& form_watch;
    modMessageHandler& message_module;
    Library& library;
};

/// Comes up initialised; then either `object().InitProperties()` runs or its properties are loaded. Ending it closes
/// its list and empties its rows.
class Control {
public:
    explicit Control(const ControlEnvironment& environment);
    ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    ControlState& state() { return core_.state; }
    ControlObject& object() { return object_; }
    Layout& layout() { return layout_; }
    Appearance& appearance() { return appearance_; }
    ItemStore& items() { return items_; }
    Selection& selection() { return selection_; }
    CheckBoxes& check_boxes() { return check_boxes_; }
    SortAndSearch& sort_and_search() { return sort_and_search_; }
    ColumnSet& columns() { return columns_; }
    ColumnAutoSize& column_sizes() { return column_sizes_; }
    ColumnOrder& column_order() { return column_order_; }
    HeaderIcons& header_icons() { return header_icons_; }
    Placement& placement() { return placement_; }
    DropDown& drop_down() { return drop_down_; }
    ResizeGrip& resize_grip() { return resize_grip_; }
    TextField& text_field() { return text_field_; }
    TextProperties& text_properties() { return text_properties_; }
    Persistence& persistence() { return persistence_; }
    Accessibility& accessibility() { return accessibility_; }
    About& about() { return about_; }

private:
    class Wiring;
    void Terminate();

    ControlCore core_;
    TextProperties text_properties_;
    Appearance appearance_;
    ControlObject object_;
    Layout layout_;
    ColumnSet columns_;
    ColumnAutoSize column_sizes_;
    ColumnOrder column_order_;
    HeaderIcons header_icons_;
    ItemStore items_;
    Selection selection_;
    CheckBoxes check_boxes_;
    SortAndSearch sort_and_search_;
    Placement placement_;
    ResizeFrame resize_frame_;
    ResizeGrip resize_grip_;
    ListMessages list_messages_;
    ListKeys list_keys_;
    std::unique_ptr<Wiring> wiring_;
    clsMsgHandler MsgHandler_;
    FloatingWindow floating_window_;
    DropDown drop_down_;
    TextField text_field_;
    Persistence persistence_;
    Accessibility accessibility_;
    About about_;
};

} // namespace vellora
