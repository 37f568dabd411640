#include "support/form_host/line_reader.h"

#include <cstdio>
#include <memory>
#include <utility>

namespace vellora::test {
namespace {

constexpr UINT line_came = WM_APP + 1;
constexpr wchar_t class_name[] = L"VelloraTestLines";

bool next_line(std::string& line) {
    line.clear();
    int c = std::getchar();
    if (c == EOF)
        return false;
    for (; c != EOF && c != '\n'; c = std::getchar())
        if (c != '\r')
            line.push_back(static_cast<char>(c));
    return true;
}

} // namespace

LineReader::LineReader(std::function<void(const std::string&)> take) : take_(std::move(take)) {
    WNDCLASSW lines{};
    lines.lpfnWndProc = procedure;
    lines.hInstance = GetModuleHandleW(nullptr);
    lines.lpszClassName = class_name;
    RegisterClassW(&lines);
    window_ = CreateWindowExW(0, class_name, nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, lines.hInstance,
                              nullptr);
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    thread_ = std::thread([this] { read(); });
}

LineReader::~LineReader() {
    // It has ended, or will when its input does: a thread that still ran at the end of the program could not
    // be trusted to find anything in place.
    thread_.join();
    DestroyWindow(window_);
}

void LineReader::read() const {
    std::string line;
    while (line != "quit") {
        if (!next_line(line))
            line = "quit";
        auto copy = std::make_unique<std::string>(line);
        if (PostMessageW(window_, line_came, 0, reinterpret_cast<LPARAM>(copy.get())))
            static_cast<void>(copy.release());
    }
}

LRESULT CALLBACK LineReader::procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept {
    auto* reader = reinterpret_cast<LineReader*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message != line_came || !reader)
        return DefWindowProcW(window, message, wparam, lparam);
    const std::unique_ptr<std::string> line(reinterpret_cast<std::string*>(lparam));
    reader->take_(*line);
    return 0;
}

} // namespace vellora::test
