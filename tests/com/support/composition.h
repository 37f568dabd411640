// An input method at work on a window: what it composes, and the text it ends with.
#pragma once

#include <windows.h>

#include <imm.h>

#include <string>

namespace vellora::test {

class Composition {
public:
    explicit Composition(HWND window) : window_(window), context_(ImmGetContext(window)) {}
    ~Composition() { ImmReleaseContext(window_, context_); }
    Composition(const Composition&) = delete;
    Composition& operator=(const Composition&) = delete;

    /// Whether the window takes compositions and the platform has somebody to make them.
    bool works() { return context_ != nullptr && set(L"x") && set(L""); }
    void show(const std::wstring& text) { set(text); }
    void finish(const std::wstring& text) {
        set(text);
        ImmNotifyIME(context_, NI_COMPOSITIONSTR, CPS_COMPLETE, 0);
    }

private:
    bool set(std::wstring text) {
        const auto bytes = static_cast<DWORD>(text.size() * sizeof(wchar_t));
        return ImmSetCompositionStringW(context_, SCS_SETSTR, text.data(), bytes, nullptr, 0) != FALSE;
    }

    HWND window_;
    HIMC context_;
};

} // namespace vellora::test
