// A log of events: the newest line is the last one and always in sight.
#pragma once

#include "event_sink.h"

#include <string>
#include <windows.h>

namespace vellora::samples {

class EventLog {
public:
    /// `style` as for make_list_box().
    explicit EventLog(HWND form, DWORD style = 0);

    HWND window() const noexcept { return window_; }
    /// An event of a control. Mouse movements come in swarms: the newest takes the place of the one before.
    void add(const std::wstring& box, const Event& event);
    /// The same with the names of the arguments.
    void add_named(const std::wstring& box, const Event& event);
    void add_line(const std::wstring& line);
    void clear();
    /// The chosen lines, or all of them when none is chosen, with line ends.
    std::wstring lines() const;

private:
    void add(const std::wstring& box, const std::wstring& event, bool movement);
    void remove_line(int index);
    std::wstring line(int index) const;
    int line_count() const;

    HWND window_;
    std::wstring moving_over_; // the box whose mouse movement is the last line
};

} // namespace vellora::samples
