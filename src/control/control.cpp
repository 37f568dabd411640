#include "control/control.h"

#include "control/wiring.h"
#include "runtime/host_error.h"

namespace vellora {

Control::Control(const ControlEnvironment& environment)
    : core_{environment.constituents, environment.surface, environment.site,
            environment.events,       environment.user32,  {}},
      text_properties_(core_), appearance_(core_), object_(core_, text_properties_, appearance_),
      layout_(core_), columns_(core_), column_sizes_(core_, columns_),
      column_order_(core_, columns_), header_icons_(core_, columns_), items_(core_, object_, columns_),
      selection_(core_, object_, drop_down_), check_boxes_(core_), sort_and_search_(core_),
      placement_(core_), resize_frame_(core_), resize_grip_(core_, resize_frame_),
      list_messages_(core_, environment.message_module, drop_down_),
      list_keys_(core_, column_order_, list_messages_, resize_grip_),
      wiring_(std::make_unique<Wiring>(*this, environment.form_watch)),
      MsgHandler_(environment.message_module, *wiring_),
      floating_window_(core_, placement_, resize_frame_, selection_, MsgHandler_),
      drop_down_(core_, placement_, columns_, column_sizes_, floating_window_, environment.form_watch),
      text_field_(core_, object_, selection_, drop_down_),
      persistence_(core_, {object_, appearance_, text_properties_, columns_, header_icons_, placement_,
                           check_boxes_, selection_}),
      accessibility_(core_, object_, drop_down_), about_(environment.library) {
    object_.Initialize();
    MsgHandler_.AddMessage(message::kill_focus);
    MsgHandler_.AddMessage(message::notify);
}

Control::~Control() {
    wiring_.reset();
    try {
        Terminate();
    } catch (...) {
        // An instance that ends has nobody left to tell.
    }
}

void Control::Terminate() {
    core_.state.mbTerminating = true;
    drop_down_.abandon();
    items_.ClearAll();
}

} // namespace vellora
