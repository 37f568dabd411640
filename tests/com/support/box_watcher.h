// Dialogs and message boxes that a call shows: met, looked at and left while their own loops run.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

namespace vellora::test {

inline std::wstring text_of(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

/// Looks for a dialog of this thread while messages run, and does something with each new one.
class BoxWatcher {
public:
    using Reaction = std::function<void(HWND box)>;

    explicit BoxWatcher(Reaction reaction) : reaction_(std::move(reaction)) {
        watcher_ = this;
        timer_ = SetTimer(nullptr, 0, 10, look);
    }
    ~BoxWatcher() {
        KillTimer(nullptr, timer_);
        watcher_ = nullptr;
    }
    BoxWatcher(const BoxWatcher&) = delete;
    BoxWatcher& operator=(const BoxWatcher&) = delete;
    int boxes() const { return boxes_; }

private:
    static void CALLBACK look(HWND, UINT, UINT_PTR, DWORD) {
        EnumThreadWindows(GetCurrentThreadId(), meet, 0);
    }
    static BOOL CALLBACK meet(HWND window, LPARAM) {
        wchar_t name[16] = {};
        GetClassNameW(window, name, 16);
        if (std::wstring(name) != L"#32770" || !IsWindowVisible(window) || GetPropW(window, L"met"))
            return TRUE;
        SetPropW(window, L"met", watcher_);
        ++watcher_->boxes_;
        watcher_->reaction_(window);
        return FALSE;
    }

    static inline BoxWatcher* watcher_ = nullptr;
    Reaction reaction_;
    UINT_PTR timer_ = 0;
    int boxes_ = 0;
};

inline void press_ok(HWND box) {
    PostMessageW(box, WM_COMMAND, IDOK, 0);
}

} // namespace vellora::test
