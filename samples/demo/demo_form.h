// The form: a control for each definition in list_contents.h, an ordinary text field, the log of events and a
// status bar.
#pragma once

#include "hosting/event_log.h"
#include "hosting/form_focus.h"
#include "hosting/form_font.h"
#include "hosting/form_frame.h"
#include "hosting/line_file.h"
#include "vellora_box.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vellora::samples {

class DemoForm {
public:
    using Boxes = std::vector<std::unique_ptr<VelloraBox>>;

    /// Creates and fills everything; the form is not shown yet. Events also go to `watcher`. Throws a Failure
    /// when there is no control to be had.
    explicit DemoForm(LineFile& watcher);
    DemoForm(const DemoForm&) = delete;
    DemoForm& operator=(const DemoForm&) = delete;
    ~DemoForm();

    void show(int how) const;
    /// Whether the form used up a message of the queue: a key for the control in use, or one that moves the
    /// focus.
    bool takes(MSG& message) const;

    HWND window() const noexcept { return window_; }
    HWND text_field() const noexcept { return text_field_; }
    const Boxes& boxes() const noexcept { return boxes_; }
    /// Whether the title bar looks active.
    bool looks_active() const noexcept { return looks_active_; }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept;
    LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam);

    void create_window();
    void create_boxes();
    void create_plain_children();
    void fill_boxes();
    void set_tab_order() const;

    void lay_out();
    void on_activated(bool active);
    void on_notified(int child_id, int notice) const;
    void on_event(const VelloraBox& box, const Event& event);
    void show_choice(const VelloraBox& box) const;
    void show_status(const std::wstring& text) const;
    void release_controls();

    LineFile& watcher_;
    FormFont font_;
    HWND window_ = nullptr;
    std::optional<FormFocus> focus_;
    bool looks_active_ = false;
    Microsoft::WRL::ComPtr<FormFrame> frame_;
    Boxes boxes_;
    HWND text_label_ = nullptr;
    HWND text_field_ = nullptr;
    HWND log_label_ = nullptr;
    std::unique_ptr<EventLog> log_;
    HWND status_ = nullptr;
};

} // namespace vellora::samples
