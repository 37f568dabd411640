#include "event_log.h"

#include "hosting/child_window.h"

namespace vellora::samples {

namespace {

constexpr int most_lines = 1000;

} // namespace

EventLog::EventLog(HWND form) : window_(make_list_box(form)) {}

void EventLog::add(const std::wstring& box, const Event& event) {
    const bool movement = event.name == L"MouseMove";
    const bool goes_on = movement && moving_over_ == box;
    if (goes_on)
        remove_line(line_count() - 1);
    add_line(box + L":  " + event.text());
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

void EventLog::remove_line(int index) {
    SendMessageW(window_, LB_DELETESTRING, static_cast<WPARAM>(index), 0);
}

int EventLog::line_count() const {
    return static_cast<int>(SendMessageW(window_, LB_GETCOUNT, 0, 0));
}

} // namespace vellora::samples
