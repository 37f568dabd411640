#include "support/form_host/commands.h"

#include "support/container/call_by_name.h"
#include "support/container/clipboard.h"
#include "support/container/control_windows.h"
#include "support/container/failure.h"
#include "support/container/text.h"
#include "support/form_host/looks.h"
#include "support/form_host/property_window.h"
#include "support/form_host/reports.h"
#include "support/form_host/values.h"

#include <map>

namespace vellora::test {
namespace {

using Microsoft::WRL::ComPtr;

Json create(HostForm& host, const Json& command) {
    const Json& design = command.get("design");
    host.create(command.must("name").text(), to_rect(command.must("place")), command.get("bag"),
                !design.is_null() && design.truth());
    return nullptr;
}

Json create_edit(HostForm& host, const Json& command) {
    host.create_edit(command.must("name").text(), to_rect(command.must("place")));
    return nullptr;
}

// The control, or the object that one of its properties holds.
ComPtr<IDispatch> object_of(HostForm& host, const Json& command) {
    const ComPtr<IDispatch> control = host.control(command.must("control").text()).as<IDispatch>();
    const Json& property = command.get("of");
    if (!property.is_text())
        return control;
    const Variant object = get_property(control.Get(), wide(property.text()));
    if (object.type() != VT_DISPATCH || !object.get().pdispVal)
        throw JsonError("there is no object in \"" + property.text() + '"');
    return object.get().pdispVal;
}
std::wstring member_of(const Json& command) {
    return wide(command.must("member").text());
}

Json get(HostForm& host, const Json& command) {
    return to_json(
        get_property(object_of(host, command).Get(), member_of(command), to_variants(command.get("args"))));
}

Json put(HostForm& host, const Json& command) {
    put_property(object_of(host, command).Get(), member_of(command), to_variant(command.must("value")),
                 to_variants(command.get("args")));
    return nullptr;
}

Json set(HostForm& host, const Json& command) {
    set_property(object_of(host, command).Get(), member_of(command), to_variant(command.must("value")));
    return nullptr;
}

Json call(HostForm& host, const Json& command) {
    return to_json(
        call_method(object_of(host, command).Get(), member_of(command), to_variants(command.get("args"))));
}

Json events(HostForm& host, const Json&) {
    Json::List result;
    for (std::string& event : host.take_events())
        result.emplace_back(std::move(event));
    return result;
}

// Commands to be carried out inside an event; {"do": "argument"} writes one of its arguments.
Json on(HostForm& host, const Json& command) {
    const Json::List reactions = command.must("reactions").list();
    const Json& times = command.get("times");
    host.react(
        command.must("control").text(), command.must("event").text(),
        [&host, reactions](EventArguments& arguments) {
            for (const Json& reaction : reactions) {
                if (reaction.must("do").text() == "argument")
                    arguments.set(static_cast<std::size_t>(reaction.must("index").number()),
                                  to_variant(reaction.must("value")));
                else
                    answer(host, reaction);
            }
        },
        times.is_null() ? 1 : static_cast<int>(times.number()));
    return nullptr;
}

Json destroy(HostForm& host, const Json& command) {
    host.destroy(command.must("control").text());
    return nullptr;
}

Json destroy_form(HostForm& host, const Json&) {
    host.destroy_form();
    return nullptr;
}

Json place(HostForm& host, const Json& command) {
    host.control(command.must("control").text()).move(to_rect(command.must("place")));
    return nullptr;
}

Json enable(HostForm& host, const Json& command) {
    EnableWindow(host.edit(command.must("edit").text()), command.must("enabled").truth());
    return nullptr;
}

Json remove_window(HostForm& host, const Json& command) {
    DestroyWindow(host.edit(command.must("edit").text()));
    return nullptr;
}

Json send_message(HostForm& host, const Json& command) {
    const auto number = [&](const char* name) { return static_cast<long>(command.must(name).number()); };
    return static_cast<long>(SendMessageW(host.edit(command.must("edit").text()),
                                          static_cast<UINT>(number("message")),
                                          static_cast<WPARAM>(number("wparam")), number("lparam")));
}

Json set_focus(HostForm& host, const Json& command) {
    if (const Json& edit = command.get("edit"); edit.is_text())
        SetFocus(host.edit(edit.text()));
    else
        SetFocus(text_field(host.window(command.must("control").text())));
    return nullptr;
}

// As an on-screen keyboard does: characters without keys, and those beyond 16 bits in two halves.
Json type_characters(HostForm&, const Json& command) {
    std::vector<INPUT> inputs;
    for (const wchar_t unit : wide(command.must("text").text())) {
        for (const DWORD release : {DWORD{0}, DWORD{KEYEVENTF_KEYUP}}) {
            INPUT input{};
            input.type = INPUT_KEYBOARD;
            input.ki.wScan = unit;
            input.ki.dwFlags = KEYEVENTF_UNICODE | release;
            inputs.push_back(input);
        }
    }
    return static_cast<long>(SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT)));
}

Json clipboard(HostForm&, const Json& command) {
    if (const Json& text = command.get("text"); text.is_text())
        set_clipboard_text(wide(text.text()));
    return utf8(clipboard_text());
}

} // namespace

Json carry_out(HostForm& host, const Json& command) {
    using Command = Json (*)(HostForm&, const Json&);
    static const std::map<std::string, Command> commands = {{"create", create},
                                                            {"edit", create_edit},
                                                            {"combo", create_combo},
                                                            {"window", create_window},
                                                            {"portrait", create_portrait},
                                                            {"system_colors", set_system_colors},
                                                            {"get_system_colors", get_system_colors},
                                                            {"enable", enable},
                                                            {"remove", remove_window},
                                                            {"send", send_message},
                                                            {"get", get},
                                                            {"put", put},
                                                            {"set", set},
                                                            {"call", call},
                                                            {"events", events},
                                                            {"on", on},
                                                            {"destroy", destroy},
                                                            {"destroy_form", destroy_form},
                                                            {"place", place},
                                                            {"set_focus", set_focus},
                                                            {"type", type_characters},
                                                            {"clipboard", clipboard},
                                                            {"properties", show_properties},
                                                            {"page", show_page},
                                                            {"rect", report_rect},
                                                            {"focus", report_focus},
                                                            {"caption", report_caption},
                                                            {"list", report_list},
                                                            {"floating", report_floating},
                                                            {"form", report_form},
                                                            {"paint", paint_all},
                                                            {"repaint", repaint_all},
                                                            {"input", report_input}};
    const std::string& name = command.must("do").text();
    const auto found = commands.find(name);
    if (found == commands.end())
        throw JsonError("unknown command \"" + name + '"');
    return found->second(host, command);
}

Json answer(HostForm& host, const Json& command) noexcept try {
    return Json::Object{{"ok", true}, {"result", carry_out(host, command)}};
} catch (const CallFailed& failed) {
    return Json::Object{{"ok", false}, {"error", to_json(failed.failure())}};
} catch (const std::exception& error) {
    return Json::Object{{"ok", false}, {"error", error.what()}};
}

} // namespace vellora::test
