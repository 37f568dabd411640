// The log of events at the bottom of the form: the newest line is the last one and always in sight.
#pragma once

#include "hosting/event_sink.h"

#include <string>
#include <windows.h>

namespace vellora::samples {

class EventLog {
public:
    explicit EventLog(HWND form);

    HWND window() const noexcept { return window_; }
    /// An event of a control. Mouse movements come in swarms: the newest takes the place of the one before.
    void add(const std::wstring& box, const Event& event);
    void add_line(const std::wstring& line);

private:
    void remove_line(int index);
    int line_count() const;

    HWND window_;
    std::wstring moving_over_; // the box whose mouse movement is the last line
};

} // namespace vellora::samples
