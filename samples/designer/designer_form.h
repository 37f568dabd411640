// A form designer of one control: the control in design mode, its property window, and buttons to try it out and to
// load and save it.
#pragma once

#include "hosting/change_sink.h"
#include "hosting/control_factory.h"
#include "hosting/plain_form.h"
#include "property_bag.h"
#include "property_window.h"

#include <optional>
#include <string>

namespace vellora::samples {

class DesignerForm {
public:
    /// In the order they stand in.
    enum Button { set = 100, run, save, load, pages };

    /// Begins with a new control.
    DesignerForm();
    DesignerForm(const DesignerForm&) = delete;
    DesignerForm& operator=(const DesignerForm&) = delete;
    ~DesignerForm();

    PlainForm& form() noexcept { return form_; }
    const PropertyWindow& properties() const noexcept { return properties_; }
    const PropertyTable& table() const noexcept { return *table_; }
    _Vellora& control() const noexcept { return *control_.Get(); }
    bool running() const noexcept { return running_; }
    /// What the designer had to say last; a refusal in the control's words.
    const std::wstring& message() const noexcept { return message_; }

    /// Gives the chosen property the value in the field.
    void set_value();
    /// A running control is another one than the designed one: it is loaded with what that would save.
    void toggle_run();
    void save_settings();
    /// Back to what was saved.
    void load_settings();
    /// The control's property pages, in the system's own window.
    void show_pages();

private:
    void on_notice(int id, int notice);
    void on_button(int id);
    void place_buttons();
    void put_on_form(IPropertyBag* settings);
    void take_off();
    Microsoft::WRL::ComPtr<PropertyBag> settings_now() const;
    void say(const std::wstring& message);

    PlainForm form_;
    PropertyWindow properties_;
    HWND status_;
    ControlFactory factory_;
    Microsoft::WRL::ComPtr<_Vellora> control_;
    ControlSite* site_ = nullptr;
    std::optional<PropertyTable> table_;
    Microsoft::WRL::ComPtr<ChangeSink> changes_;
    Microsoft::WRL::ComPtr<PropertyBag> designed_; // what the running control was made from
    Microsoft::WRL::ComPtr<PropertyBag> saved_;
    std::wstring message_;
    bool running_ = false;
};

} // namespace vellora::samples
