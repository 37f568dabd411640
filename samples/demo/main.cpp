// The demonstration of the Vellora control: a form with several of them, and a log of what they tell their
// host.
//
//     demo.exe [--log FILE]
//
// With --log the events and what is to be seen on the form also go into a file, for a program that plays the
// user.
#include "demo_form.h"
#include "hosting/failure.h"
#include "screen_report.h"

#include <commctrl.h>
#include <exception>
#include <ole2.h>
#include <shellapi.h>

namespace vellora::samples {

namespace {

std::wstring log_path_from_command_line() {
    std::wstring path;
    int count = 0;
    LPWSTR* const arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    for (int i = 1; i + 1 < count; ++i)
        if (std::wstring_view(arguments[i]) == L"--log")
            path = arguments[i + 1];
    LocalFree(arguments);
    return path;
}

void run(const DemoForm& form, ScreenReport& report) {
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (!form.takes(message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        const bool idle = !PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);
        if (idle)
            report.update(form);
    }
}

void demonstrate(LineFile& file, int how_to_show) {
    DemoForm form(file);
    ScreenReport report(file);
    form.show(how_to_show);
    run(form, report);
}

/// The watching program gets to know what ended the demonstration, as the user does.
void demonstrate_watched(int how_to_show) {
    LineFile file(log_path_from_command_line());
    try {
        demonstrate(file, how_to_show);
    } catch (const Failure& failure) {
        file.write({L"problem", failure.message()});
        throw;
    }
}

void explain(const std::wstring& problem) {
    MessageBoxW(nullptr, problem.c_str(), L"Vellora demonstration", MB_OK | MB_ICONERROR);
}

int guarded_run(int how_to_show) {
    try {
        demonstrate_watched(how_to_show);
        return 0;
    } catch (const Failure& failure) {
        explain(failure.message());
    } catch (const std::exception&) {
        explain(L"There is not enough memory.");
    }
    return 1;
}

} // namespace

} // namespace vellora::samples

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int how_to_show) {
    // Without this the system would draw the form small and blow the picture up on a screen of high
    // resolution.
    SetProcessDPIAware();
    if (FAILED(OleInitialize(nullptr)))
        return 1;
    const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_BAR_CLASSES};
    InitCommonControlsEx(&classes);
    const int code = vellora::samples::guarded_run(how_to_show);
    OleUninitialize();
    return code;
}
