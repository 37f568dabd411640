#include "designer_form.h"

#include "hosting/child_window.h"
#include "hosting/failure.h"
#include "hosting/screen.h"
#include "hosting/user.h"

#include <commctrl.h>
#include <olectl.h>

namespace vellora::samples {

using Microsoft::WRL::ComPtr;

namespace {

constexpr int list_id = 200, field_id = 201;

RECT control_place() {
    return scaled(RECT{16, 16, 264, 38});
}

template <class Interface>
ComPtr<Interface> ask(_Vellora* control, const wchar_t* name) {
    ComPtr<Interface> result;
    check(control->QueryInterface(IID_PPV_ARGS(&result)), name);
    return result;
}

} // namespace

DesignerForm::DesignerForm()
    : form_(L"Form designer", {440, 460}),
      properties_(form_.window(), scaled(RECT{16, 60, 424, 380}), list_id, field_id, form_.controls().font()),
      status_(make_label(form_.window(), L"")) {
    set_font(status_, form_.controls().font());
    move_window(status_, scaled(RECT{16, 430, 424, 450}));
    place_buttons();
    form_.on_notice([this](int id, int notice) { on_notice(id, notice); });
    put_on_form(nullptr);
}

DesignerForm::~DesignerForm() {
    take_off();
}

void DesignerForm::place_buttons() {
    int left = 16;
    int id = set;
    for (const wchar_t* caption : {L"&Set", L"&Run", L"Sa&ve", L"&Load", L"&Pages..."}) {
        const HWND button = make_button(form_.window(), caption, id++);
        set_font(button, form_.controls().font());
        move_window(button, scaled(RECT{left, 392, left + 76, 418}));
        left += 83;
    }
}

void DesignerForm::on_notice(int id, int notice) {
    try {
        if (id == list_id && notice == static_cast<int>(LVN_ITEMCHANGED))
            properties_.offer_value();
        else if (notice == BN_CLICKED)
            on_button(id);
    } catch (const Failure& failure) {
        say(failure.message());
    }
}

void DesignerForm::on_button(int id) {
    switch (id) {
    case set:
        return set_value();
    case run:
        return toggle_run();
    case save:
        return save_settings();
    case load:
        return load_settings();
    case pages:
        return show_pages();
    }
}

void DesignerForm::set_value() {
    if (const Property* const property = properties_.chosen()) {
        table_->set(*property, properties_.entered());
        properties_.refresh();
        properties_.offer_value();
        say(property->name + L" is " + properties_.entered());
    }
}

void DesignerForm::toggle_run() {
    if (!running_)
        designed_ = settings_now();
    running_ = !running_;
    take_off();
    put_on_form(designed_.Get());
    say(running_ ? L"The control is running." : L"The control is being designed.");
}

void DesignerForm::save_settings() {
    saved_ = settings_now();
    say(L"The settings are saved.");
}

void DesignerForm::load_settings() {
    if (!saved_)
        return say(L"Nothing is saved yet.");
    take_off();
    put_on_form(saved_.Get());
    say(L"The settings are loaded.");
}

void DesignerForm::show_pages() {
    const ComPtr<IOleObject> object = ask<IOleObject>(control_.Get(), L"IOleObject");
    check(object->DoVerb(OLEIVERB_PROPERTIES, nullptr, site_, 0, form_.window(), nullptr), L"Showing the pages");
    properties_.refresh();
}

void DesignerForm::put_on_form(IPropertyBag* settings) {
    control_ = factory_.create();
    form_.controls().design(!running_);
    site_ = &form_.controls().add(control_.Get(), L"Vellora1", control_place(), settings);
    // Nobody works with a control that is being designed.
    EnableWindow(window_of(control()), running_);
    table_.emplace(control_.Get());
    properties_.show(&*table_);
    changes_ = new ChangeSink([this] { properties_.refresh(); });
    changes_->listen_to(control_.Get());
}

void DesignerForm::take_off() {
    changes_->stop();
    properties_.show(nullptr);
    table_.reset();
    if (form_.window())
        form_.controls().remove(*site_);
    site_ = nullptr;
    control_.Reset();
}

ComPtr<PropertyBag> DesignerForm::settings_now() const {
    ComPtr<PropertyBag> bag(new PropertyBag);
    check(ask<IPersistPropertyBag>(control_.Get(), L"IPersistPropertyBag")->Save(bag.Get(), TRUE, TRUE),
          L"Saving the settings");
    return bag;
}

void DesignerForm::say(const std::wstring& message) {
    message_ = message;
    SetWindowTextW(status_, message.c_str());
    SetWindowTextW(GetDlgItem(form_.window(), run), running_ ? L"&Design" : L"&Run");
}

} // namespace vellora::samples
