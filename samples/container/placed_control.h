// One control on the form: what the form knows of it, and the live control, or a frame with the name of its class when
// there is none to be had. Nothing of a foreign control is lost.
#pragma once

#include "form_text.h"
#include "hosting/change_sink.h"
#include "hosting/control_factory.h"
#include "hosting/controls.h"
#include "hosting/event_sink.h"

#include <functional>
#include <string>

namespace vellora::samples {

class PlacedControl {
public:
    /// What a control needs to be shown.
    struct Stage {
        Controls& controls;
        const ControlFactory& factory;
        HWND surface;
        bool running;
        std::function<void(const PlacedControl&, const Event&)> heard;
        std::function<void()> changed;
    };

    explicit PlacedControl(FormControl form) : form_(std::move(form)) {}
    PlacedControl(const PlacedControl&) = delete;
    PlacedControl& operator=(const PlacedControl&) = delete;

    /// A new control has its defaults, not those of settings that are missing. Returns why there is only a frame; empty
    /// when there is a control.
    std::wstring show(const Stage& stage, bool is_new);
    void take_off(Controls& controls);

    /// Null when only its frame is there.
    IUnknown* control() const noexcept { return control_.Get(); }
    /// Whether the form gives it a place: menus have none.
    bool has_place() const noexcept { return (form_.place_parts & (form_left | form_top)) != 0; }
    HWND window() const;
    std::wstring name() const;
    std::wstring program_id() const;
    /// As a save would write it. Throws a Failure when the control cannot save itself.
    FormControl saved() const;
    const FormControl& form() const noexcept { return form_; }

    /// Pixels of the form's inside.
    RECT place() const;
    /// The control may decide for another size, see place().
    void move(const RECT& place);
    /// The same in the form's unit, for an edge that was typed.
    void move_to(std::int32_t FormControl::*edge, std::int32_t twips);
    void rename(const std::wstring& name);
    void set_tab_index(std::int32_t index) { form_.tab_index = index; }
    /// Lets the control take the height it wants by now, say for another font.
    void settle() const;
    /// The control may have given itself another size; true when it has.
    bool take_over_place();
    /// The control's pages in the system's window.
    void show_pages(HWND owner) const;

private:
    Microsoft::WRL::ComPtr<IUnknown> create(const ControlFactory& factory) const;
    void host(const Stage& stage, bool is_new);
    void load(bool is_new);
    void listen(const Stage& stage);
    void show_frame(HWND surface);
    RECT wanted_place() const;

    FormControl form_;
    std::vector<FormSetting> unread_; // kept for whoever understands them
    Microsoft::WRL::ComPtr<IUnknown> control_;
    ControlSite* site_ = nullptr;
    Microsoft::WRL::ComPtr<EventSink> events_;
    Microsoft::WRL::ComPtr<ChangeSink> changes_;
    HWND frame_ = nullptr;
};

} // namespace vellora::samples
