// The test container: a form to put controls on, to design, to run, to save and to load. Every property, method and
// event of a control can be tried out by hand.
//
//     container.exe [--check] [--log FILE] [FORM]
//
// With --log the events and what is to be seen on the screen also go into a file, for a program that plays the user.
#include "check.h"
#include "container_report.h"
#include "hosting/environment.h"
#include "hosting/sample.h"

#include <algorithm>
#include <commctrl.h>

namespace vellora::samples {

namespace {

/// Takes what follows a word out of the command line; empty when the word is not there.
std::wstring taken_from(std::vector<std::wstring>& arguments, const wchar_t* word) {
    const auto found = std::ranges::find(arguments, word);
    if (found == arguments.end() || found + 1 == arguments.end())
        return {};
    std::wstring value = *(found + 1);
    arguments.erase(found, found + 2);
    return value;
}

// What can be seen is reported whenever there is nothing to do.
void run(ContainerWindow& container, ContainerReport& report) {
    for (MSG message;;) {
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (message.message == WM_QUIT)
                return;
            if (!container.takes(message)) {
                TranslateMessage(&message);
                DispatchMessageW(&message);
            }
        }
        report.update(container);
        WaitMessage();
    }
}

void contain(std::vector<std::wstring> arguments, Steps* steps) {
    const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES};
    InitCommonControlsEx(&classes);
    LineFile watcher(taken_from(arguments, L"--log"));
    ContainerWindow container(watcher);
    ContainerReport report(watcher);
    container.show();
    if (!arguments.empty())
        container.document().open(windows_path(arguments.front()));
    container.refresh();
    if (steps)
        check_container(container, *steps);
    else
        run(container, report);
}

} // namespace

} // namespace vellora::samples

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    using namespace vellora::samples;
    return run_sample(L"Vellora test container", contain);
}
