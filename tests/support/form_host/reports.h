// What a test asks about the screen: where things are, who has the focus, how the caption looks.
#pragma once

#include "support/form_host/host_form.h"
#include "support/form_host/json.h"

namespace vellora::test {

/// {"what": "form" | "control" | "text" | "button" | "floating" | "list" | "row" | "header" | "edit",
/// "control" or "edit": name, "index": row or column}: [left, top, right, bottom] on the screen, or null.
Json report_rect(HostForm& host, const Json& command);
/// {"class": ..., "owner": ..., "in_list": ...} of the focus window; null when this program has no focus.
Json report_focus(HostForm& host, const Json& command);
/// {"active": how the caption was last told to look, "messages": [...]}; the messages start anew.
Json report_caption(HostForm& host, const Json& command);
/// Of the open list: count, top, selected and focused row, column widths in pixels, which scroll bars.
Json report_list(HostForm& host, const Json& command);
/// How many floating windows there are.
Json report_floating(HostForm& host, const Json& command);
/// Brings everything that is to be painted onto the screen.
Json paint_all(HostForm& host, const Json& command);
Json repaint_all(HostForm& host, const Json& command);
/// {"alive": ..., "active": ..., "minimised": ...}
Json report_form(HostForm& host, const Json& command);
/// How many input messages of each kind this program has taken from its queue.
Json report_input(HostForm& host, const Json& command);

} // namespace vellora::test
