#include "support/form_host/reports.h"

#include "support/container/control_windows.h"
#include "support/container/text.h"
#include "support/form_host/input_counter.h"
#include "support/form_host/values.h"

#include <commctrl.h>
#include <functional>
#include <map>

namespace vellora::test {
namespace {

int index_of(const Json& command) {
    const Json& index = command.get("index");
    return index.is_null() ? 0 : static_cast<int>(index.number());
}

HWND open_list() {
    return list_of(floating_window());
}

long ask(HWND window, UINT message, WPARAM wparam = 0, LPARAM lparam = 0) {
    return static_cast<long>(SendMessageW(window, message, wparam, lparam));
}

// The modal box over the form, 0 when none stands there.
HWND modal_box(HostForm& host) {
    HWND form = host.form().frame();
    HWND box = GetLastActivePopup(form);
    return box != form && !IsWindowEnabled(form) ? box : nullptr;
}

RECT client_rect(HWND window) {
    RECT rect{};
    GetClientRect(window, &rect);
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

RECT combo_button(HWND combo) {
    COMBOBOXINFO parts{};
    parts.cbSize = sizeof parts;
    GetComboBoxInfo(combo, &parts);
    MapWindowPoints(combo, nullptr, reinterpret_cast<POINT*>(&parts.rcButton), 2);
    return parts.rcButton;
}

void redraw_all(HostForm& host, UINT how) {
    std::vector<HWND> windows = floating_windows();
    windows.push_back(host.form().frame());
    windows.push_back(modal_box(host));
    for (HWND window : windows)
        if (window)
            RedrawWindow(window, nullptr, nullptr, how | RDW_UPDATENOW | RDW_ALLCHILDREN);
    GdiFlush();
}

Json widths(HWND list) {
    Json::List result;
    const long count = ask(header_of(list), HDM_GETITEMCOUNT);
    for (long column = 0; column < count; ++column)
        result.emplace_back(ask(list, LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column)));
    return result;
}

} // namespace

Json report_rect(HostForm& host, const Json& command) {
    const std::string& what = command.must("what").text();
    const auto window = [&] { return host.window(command.must("control").text()); };
    const std::map<std::string, std::function<RECT()>> rects = {
        {"form", [&] { return screen_rect(host.form().frame()); }},
        {"inside", [&] { return client_rect(host.form().window()); }},
        {"control", [&] { return screen_rect(window()); }},
        {"text", [&] { return screen_rect(text_field(window())); }},
        {"button", [&] { return screen_rect(drop_button(window())); }},
        {"edit", [&] { return screen_rect(host.edit(command.must("edit").text())); }},
        {"combo_button", [&] { return combo_button(host.edit(command.must("edit").text())); }},
        {"box", [&] { return screen_rect(modal_box(host)); }},
        {"box_ok", [&] { return screen_rect(GetDlgItem(modal_box(host), IDOK)); }},
        {"floating", [&] { return screen_rect(floating_window()); }},
        {"list", [&] { return screen_rect(open_list()); }},
        {"row", [&] { return open_list() ? row_rect(open_list(), index_of(command)) : RECT{}; }},
        {"header", [&] { return open_list() ? header_rect(open_list(), index_of(command)) : RECT{}; }}};
    const auto found = rects.find(what);
    if (found == rects.end())
        throw JsonError("no rectangle is called \"" + what + '"');
    return to_json(found->second());
}

Json report_focus(HostForm& host, const Json&) {
    HWND focus = GetFocus();
    if (!focus)
        return nullptr;
    HWND list = open_list();
    return Json::Object{{"class", utf8(class_of(focus))},
                        {"owner", host.owner_of(focus)},
                        {"in_list", focus == list || (list && IsChild(list, focus))}};
}

Json report_caption(HostForm& host, const Json&) {
    Json::List messages;
    for (const std::string& line : host.form().caption_messages())
        messages.emplace_back(line);
    host.form().forget_caption_messages();
    return Json::Object{{"active", host.form().caption_active()}, {"messages", std::move(messages)}};
}

Json report_list(HostForm&, const Json&) {
    HWND list = open_list();
    if (!list)
        return nullptr;
    const LONG style = GetWindowLongW(list, GWL_STYLE);
    const auto none = static_cast<WPARAM>(-1);
    return Json::Object{{"count", ask(list, LVM_GETITEMCOUNT)},
                        {"top", ask(list, LVM_GETTOPINDEX)},
                        {"page", ask(list, LVM_GETCOUNTPERPAGE)},
                        {"selected", ask(list, LVM_GETNEXTITEM, none, LVNI_SELECTED)},
                        {"focused", ask(list, LVM_GETNEXTITEM, none, LVNI_FOCUSED)},
                        {"widths", widths(list)},
                        {"horizontal", (style & WS_HSCROLL) != 0},
                        {"vertical", (style & WS_VSCROLL) != 0}};
}

Json report_floating(HostForm&, const Json&) {
    return static_cast<long>(floating_windows().size());
}

Json paint_all(HostForm& host, const Json&) {
    redraw_all(host, 0);
    return nullptr;
}

Json repaint_all(HostForm& host, const Json&) {
    redraw_all(host, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
    return nullptr;
}

Json report_form(HostForm& host, const Json&) {
    HWND window = host.form().frame();
    return Json::Object{{"alive", window != nullptr},
                        {"active", window && GetActiveWindow() == window},
                        {"minimised", window && IsIconic(window)}};
}

Json report_input(HostForm&, const Json&) {
    const InputCounter::Counts& counts = InputCounter::counts();
    return Json::Object{{"button_down", counts.button_down},
                        {"button_up", counts.button_up},
                        {"key_down", counts.key_down},
                        {"key_up", counts.key_up},
                        {"wheel", counts.wheel}};
}

} // namespace vellora::test
