#include "vellora_box.h"

#include "hosting/child_window.h"
#include "hosting/failure.h"
#include "hosting/screen.h"
#include "hosting/user.h"

namespace vellora::samples {

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
    return window_of(control());
}

std::wstring VelloraBox::text() const {
    return text_of(control());
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

} // namespace vellora::samples
