#include "vellora_box.h"

#include "bstr.h"
#include "child_window.h"
#include "failure.h"
#include "screen.h"

namespace vellora::demo {

using Microsoft::WRL::ComPtr;

VelloraBox::VelloraBox(const ControlFactory& factory, const ControlSite::Surroundings& surroundings,
                       const BoxDefinition& definition)
    : definition_(definition), name_(definition.name), label_(make_label(surroundings.form, name_)),
      control_(factory.create()), site_(new ControlSite(surroundings, name_)) {
    const ComPtr<SavedSettings> settings(new SavedSettings(definition.settings));
    site_->take(control_.Get(), definition.settings.empty() ? nullptr : settings.Get());
}

VelloraBox::~VelloraBox() {
    if (events_)
        events_->stop();
    site_->release();
}

HWND VelloraBox::window() const {
    long handle = 0;
    check(control_->get_hWnd(&handle), L"Asking for the control's window");
    return reinterpret_cast<HWND>(static_cast<LONG_PTR>(handle));
}

std::wstring VelloraBox::text() const {
    Bstr text;
    check(control_->get_Text(text.out()), L"Reading the control's text");
    return text.text();
}

void VelloraBox::listen(EventSink::Handler handler) {
    events_ = new EventSink(std::move(handler));
    events_->listen_to(control_.Get());
}

void VelloraBox::move(const FormLayout::Cell& cell, int list_width) {
    move_window(label_, cell.label);
    site_->move(cell.field);
    if (!definition_.wide_list)
        return;
    const int wider = list_width - (cell.field.right - cell.field.left);
    check(control_->put_DropDownWidthOffset(twips(wider)), L"Setting the width of the list");
}

} // namespace vellora::demo
