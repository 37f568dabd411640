#include "event_log.h"

#include "child_window.h"

namespace vellora::samples {

namespace {

constexpr int most_lines = 1000;
constexpr wchar_t movement_name[] = L"MouseMove";

} // namespace

EventLog::EventLog(HWND form, DWORD style) : window_(make_list_box(form, style)) {}

void EventLog::add(const std::wstring& box, const Event& event) {
    add(box, event.text(), event.name == movement_name);
}

void EventLog::add_named(const std::wstring& box, const Event& event) {
    add(box, event.named_text(), event.name == movement_name);
}

void EventLog::add(const std::wstring& box, const std::wstring& event, bool movement) {
    const bool goes_on = movement && moving_over_ == box;
    if (goes_on)
        remove_line(line_count() - 1);
    add_line(box + L":  " + event);
    if (movement)
        moving_over_ = box;
}

void EventLog::add_line(const std::wstring& line) {
    moving_over_.clear();
    if (line_count() >= most_lines)
        remove_line(0);
    const LRESULT index = SendMessageW(window_, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line.c_str()));
    SendMessageW(window_, LB_SETTOPINDEX, static_cast<WPARAM>(index), 0);
}

void EventLog::clear() {
    moving_over_.clear();
    SendMessageW(window_, LB_RESETCONTENT, 0, 0);
}

std::wstring EventLog::lines() const {
    std::wstring chosen, all;
    for (int i = 0; i < line_count(); ++i) {
        const std::wstring text = line(i) + L"\r\n";
        all += text;
        if (SendMessageW(window_, LB_GETSEL, static_cast<WPARAM>(i), 0) > 0)
            chosen += text;
    }
    return chosen.empty() ? all : chosen;
}

void EventLog::remove_line(int index) {
    SendMessageW(window_, LB_DELETESTRING, static_cast<WPARAM>(index), 0);
}

std::wstring EventLog::line(int index) const {
    const auto row = static_cast<WPARAM>(index);
    std::wstring text(static_cast<std::size_t>(SendMessageW(window_, LB_GETTEXTLEN, row, 0)), L'\0');
    SendMessageW(window_, LB_GETTEXT, row, reinterpret_cast<LPARAM>(text.data()));
    return text;
}

int EventLog::line_count() const {
    return static_cast<int>(SendMessageW(window_, LB_GETCOUNT, 0, 0));
}

} // namespace vellora::samples
