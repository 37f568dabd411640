#include "dropdown/list_messages.h"

#include "columns/held_column.h"
#include "dropdown/drop_down.h"
#include "dropdown/modMessageHandler.h"

namespace vellora {

namespace {

bool begins_track(std::int32_t code) {
    return code == notification::header_begin_track_ansi || code == notification::header_begin_track_wide;
}

bool double_clicks_divider(std::int32_t code) {
    return code == notification::header_divider_double_click_ansi ||
           code == notification::header_divider_double_click_wide;
}

} // namespace

ListMessages::ListMessages(ControlCore& core, modMessageHandler& module, DropDown& drop_down)
    : core_(core), module_(module), drop_down_(drop_down) {}

void ListMessages::MsgHandler_MessageRecieved(std::uint32_t uMsg, std::uintptr_t wParam, std::intptr_t lParam,
                                              std::intptr_t& lRetVal) {
    if (uMsg == message::kill_focus) {
        drop_down_.list_lost_focus(static_cast<WindowHandle>(wParam));
    } else if (uMsg == message::notify) {
        header_notified(wParam, lParam, lRetVal);
    }
}

void ListMessages::header_notified(std::uintptr_t wParam, std::intptr_t lParam, std::intptr_t& lRetVal) {
    const WindowHandle list = core_.parts.ListView1.window();
    const WindowHandle header = core_.user32.send_message(list, message::list_get_header, 0, 0);
    const std::int32_t code = module_.notification(lParam).code;
    // The list sizes a column on a double click at once, so this one has to be refused before the list sees it.
    if (header != 0 && double_clicks_divider(code) && refuses_divider(header)) {
        lRetVal = 1;
        return;
    }
    lRetVal = module_.call_previous(list, message::notify, wParam, lParam);
    if (header == 0) {
        return;
    }
    if (code == notification::header_end_drag) {
        if (!column_dragged()) {
            lRetVal = 1;
        }
    } else if (begins_track(code) && refuses_divider(header)) {
        lRetVal = 1;
    }
}

bool ListMessages::column_dragged() {
    const std::int16_t columns = core_.state.miColumns;
    core_.events.column_reorder();
    if (core_.state.mlStatic_hWnd != 0) {
        core_.user32.set_focus(core_.parts.ListView1.window());
    }
    return core_.state.miColumns == columns;
}

bool ListMessages::refuses_divider(WindowHandle header) const {
    const std::int32_t item = core_.user32.header_item_at(header, core_.user32.cursor());
    return is_column_held(core_.state, item + 1);
}

} // namespace vellora
