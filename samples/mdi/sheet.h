// An MDI child with one control in it. Each child looks after its own control; the one that is active gets the keys.
#pragma once

#include "hosting/control_factory.h"
#include "hosting/controls.h"

#include <optional>

#include <wrl/client.h>

namespace vellora::samples {

class Sheet {
public:
    /// `client` is the window inside the frame that holds the children. Throws a Failure when there is no control.
    Sheet(const ControlFactory& factory, HWND frame, HWND client, const wchar_t* title);
    Sheet(const Sheet&) = delete;
    Sheet& operator=(const Sheet&) = delete;
    ~Sheet();

    HWND window() const noexcept { return window_; }
    _Vellora& control() const noexcept { return *control_.Get(); }
    bool takes(MSG& message) const { return window_ && controls_->takes(message); }
    /// The frame became the active window, or another program's did.
    void frame_activated(bool active) { controls_->window_heard(WM_ACTIVATE, active ? WA_ACTIVE : WA_INACTIVE); }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept;
    void handle(UINT message, WPARAM wparam, LPARAM lparam);
    void create_window(HWND client, const wchar_t* title);
    void fill() const;

    HWND window_ = nullptr;
    std::optional<Controls> controls_;
    Microsoft::WRL::ComPtr<_Vellora> control_;
};

} // namespace vellora::samples
