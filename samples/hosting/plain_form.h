// A window with controls on it and nothing else: the form of the small samples.
#pragma once

#include "controls.h"

#include <functional>
#include <optional>

namespace vellora::samples {

class PlainForm {
public:
    /// `client` is the inner size in pixels at 96 dots per inch. The form is not shown yet.
    PlainForm(const wchar_t* title, SIZE client);
    PlainForm(const PlainForm&) = delete;
    PlainForm& operator=(const PlainForm&) = delete;
    ~PlainForm();

    HWND window() const noexcept { return window_; }
    Controls& controls() noexcept { return *controls_; }
    /// What happens when a plain child notifies the form: its identifier and its notice.
    void on_notice(std::function<void(int id, int notice)> handler) { on_notice_ = std::move(handler); }

    void show() const;
    /// Shows the form until the user closes it.
    void run();
    bool takes(MSG& message) const { return controls_->takes(message); }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept;
    void handle(UINT message, WPARAM wparam, LPARAM lparam);
    void notified(int id, int notice) const;

    HWND window_ = nullptr;
    std::optional<Controls> controls_;
    std::function<void(int id, int notice)> on_notice_;
};

} // namespace vellora::samples
