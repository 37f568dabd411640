// A form with Vellora controls for the screen tests: commands come in as lines of JSON on the standard input,
// each is answered with one line on the standard output.
#include "support/form_host/commands.h"
#include "support/form_host/input_counter.h"
#include "support/form_host/line_reader.h"
#include "support/form_host/looks.h"

#include "support/container/text.h"

#include <cstdio>
#include <exception>
#include <ole2.h>
#include <shellapi.h>

namespace vellora::test {
namespace {

Form::Look look_from_command_line() {
    Form::Look look;
    look.title = L"Vellora form";
    int count = 0;
    LPWSTR* arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    for (int i = 1; i < count; ++i) {
        const std::wstring argument = arguments[i];
        if (argument == L"--mdi")
            look.kind = Form::Kind::mdi_child;
        else if (argument == L"--dialog")
            look.kind = Form::Kind::dialog;
        else if (argument == L"--styled")
            use_visual_styles();
        else if (argument == L"--title" && i + 1 < count)
            look.title = arguments[++i];
    }
    LocalFree(arguments);
    return look;
}

void say(const Json& answer) {
    std::puts(answer.write().c_str());
    std::fflush(stdout);
}

void take_line(HostForm& host, const std::string& line) {
    if (line == "quit") {
        PostQuitMessage(0);
        return;
    }
    try {
        say(answer(host, Json::parse(line)));
    } catch (const JsonError& error) {
        say(Json::Object{{"ok", false}, {"error", error.what()}});
    }
}

void run(HostForm& host) {
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (host.form().translate(message))
            continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

int run_host() {
    const InputCounter counter;
    HostForm host(look_from_command_line());
    LineReader lines([&host](const std::string& line) { take_line(host, line); });
    say(Json::Object{{"ok", true}, {"result", "ready"}});
    run(host);
    return 0;
}

} // namespace
} // namespace vellora::test

int main() {
    if (FAILED(OleInitialize(nullptr)))
        return 1;
    int code = 1;
    try {
        code = vellora::test::run_host();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "form_host: %s\n", error.what());
    }
    OleUninitialize();
    return code;
}
