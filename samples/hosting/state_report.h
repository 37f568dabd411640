// What is to be seen on the screen, for a program that plays the user: each thing is written when it changed, as a line
// `state`, its name, its value.
#pragma once

#include "line_file.h"

#include <map>
#include <string>
#include <windows.h>

namespace vellora::samples {

/// Screen pixels: left, top, right, bottom.
inline std::wstring text_of(const RECT& rect) {
    return std::to_wstring(rect.left) + L' ' + std::to_wstring(rect.top) + L' ' + std::to_wstring(rect.right) + L' ' +
           std::to_wstring(rect.bottom);
}

inline RECT place_of(HWND window) {
    RECT rect{};
    GetWindowRect(window, &rect);
    return rect;
}

class StateReport {
public:
    explicit StateReport(LineFile& file) : file_(file) {}

    /// Whether anybody reads it.
    bool is_watched() const noexcept { return file_.is_open(); }
    void report(const std::wstring& name, const std::wstring& value) {
        const auto [known, is_new] = reported_.try_emplace(name, value);
        if (!is_new && known->second == value)
            return;
        known->second = value;
        file_.write({L"state", name, value});
    }

private:
    LineFile& file_;
    std::map<std::wstring, std::wstring> reported_;
};

} // namespace vellora::samples
