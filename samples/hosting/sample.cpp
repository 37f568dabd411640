#include "sample.h"

#include "failure.h"

#include <algorithm>
#include <ole2.h>
#include <shellapi.h>

namespace vellora::samples {

namespace {

std::vector<std::wstring> command_line() {
    int count = 0;
    LPWSTR* const words = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::wstring> arguments(words + 1, words + count);
    LocalFree(words);
    return arguments;
}

void dispatch(MSG& message, const Taker& takes) {
    if (takes(message))
        return;
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

/// What kept the subject from going on; empty when nothing did.
std::wstring problem_of(const std::function<void()>& attempt) {
    try {
        attempt();
        return {};
    } catch (const Failure& failure) {
        return failure.message();
    } catch (const std::exception&) {
        return L"There is not enough memory.";
    }
}

int check_by_itself(const Subject& subject, const std::vector<std::wstring>& arguments) {
    Steps steps;
    if (const std::wstring problem = problem_of([&] { subject(arguments, &steps); }); !problem.empty())
        steps.give_up(problem);
    return steps.end();
}

int show(const wchar_t* title, const Subject& subject, const std::vector<std::wstring>& arguments) {
    const std::wstring problem = problem_of([&] { subject(arguments, nullptr); });
    if (problem.empty())
        return 0;
    MessageBoxW(nullptr, problem.c_str(), title, MB_OK | MB_ICONERROR);
    return 1;
}

} // namespace

int run_sample(const wchar_t* title, const Subject& subject) {
    // Without this the system would draw forms small and blow the picture up on a screen of high resolution.
    SetProcessDPIAware();
    if (FAILED(OleInitialize(nullptr)))
        return 1;
    std::vector<std::wstring> arguments = command_line();
    const bool by_itself = std::erase(arguments, L"--check") != 0;
    const int code = by_itself ? check_by_itself(subject, arguments) : show(title, subject, arguments);
    OleUninitialize();
    return code;
}

void run_messages(const Taker& takes) {
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        dispatch(message, takes);
}

void settle(const Taker& takes) {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        dispatch(message, takes);
}

} // namespace vellora::samples
