#include "placed_control.h"

#include "form_property_bag.h"
#include "form_units.h"
#include "hosting/child_window.h"
#include "hosting/failure.h"
#include "wide_text.h"

#include <olectl.h>
#include <utility>

namespace vellora::samples {

using Microsoft::WRL::ComPtr;

namespace {

constexpr wchar_t our_class[] = L"VelloraCTL.Vellora";
constexpr int icon_side = 28; // of what has no size of its own, say a timer

ComPtr<IPersistPropertyBag> settings_of(IUnknown* control) {
    ComPtr<IPersistPropertyBag> settings;
    check(control->QueryInterface(IID_PPV_ARGS(&settings)), L"Asking the control for IPersistPropertyBag");
    return settings;
}

HWND window_in(IUnknown* control) {
    ComPtr<IOleWindow> object;
    HWND window = nullptr;
    if (control && SUCCEEDED(control->QueryInterface(IID_PPV_ARGS(&object))))
        object->GetWindow(&window);
    return window;
}

} // namespace

std::wstring PlacedControl::name() const {
    return wide(form_.name);
}

std::wstring PlacedControl::program_id() const {
    return wide(form_.program_id);
}

HWND PlacedControl::window() const {
    return control_ ? window_in(control_.Get()) : frame_;
}

std::wstring PlacedControl::show(const Stage& stage, bool is_new) {
    try {
        host(stage, is_new);
        return {};
    } catch (const Failure& failure) {
        take_off(stage.controls);
        if (has_place())
            show_frame(stage.surface);
        return failure.message();
    }
}

void PlacedControl::host(const Stage& stage, bool is_new) {
    control_ = create(stage.factory);
    site_ = &stage.controls.reserve(name(), wanted_place());
    site_->adopt(control_.Get());
    ComPtr<IOleObject> object;
    check(control_.As(&object), L"Asking the control for IOleObject");
    check(object->SetClientSite(site_), L"Giving the control a site");
    load(is_new);
    site_->show();
    site_->move(wanted_place());
    // Nobody works with a control that is being designed; the mouse is the form's.
    EnableWindow(window(), stage.running);
    listen(stage);
}

ComPtr<IUnknown> PlacedControl::create(const ControlFactory& factory) const {
    if (lstrcmpiW(program_id().c_str(), our_class) == 0)
        return factory.create();
    CLSID id{};
    ComPtr<IUnknown> control;
    if (FAILED(CLSIDFromProgID(program_id().c_str(), &id)))
        throw Failure(program_id() + L" is not registered.");
    check(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&control)), L"Creating a control");
    return control;
}

void PlacedControl::load(bool is_new) {
    const ComPtr<IPersistPropertyBag> persistent = settings_of(control_.Get());
    const ComPtr<FormPropertyBag> bag(new FormPropertyBag(form_.settings));
    const HRESULT loaded = is_new ? persistent->InitNew() : persistent->Load(bag.Get(), nullptr);
    unread_ = bag->unread();
    bag->close();
    check(loaded, L"Setting the control up");
}

void PlacedControl::listen(const Stage& stage) {
    changes_ = new ChangeSink(stage.changed);
    changes_->listen_to(control_.Get());
    if (!stage.running)
        return;
    ComPtr<EventSink> events(new EventSink([this, heard = stage.heard](const Event& event) { heard(*this, event); }));
    try {
        events->listen_to(control_.Get());
        events_ = events;
    } catch (const Failure&) {
        // A control without events is as good as any other.
    }
}

void PlacedControl::show_frame(HWND surface) {
    const std::wstring text = name() + L'\n' + program_id();
    frame_ = CreateWindowExW(0, L"Static", text.c_str(), WS_CHILD | WS_VISIBLE | WS_BORDER | WS_DISABLED | SS_CENTER, 0,
                             0, 0, 0, surface, nullptr, GetModuleHandleW(nullptr), nullptr);
    set_font(frame_, reinterpret_cast<HFONT>(SendMessageW(GetAncestor(surface, GA_ROOT), WM_GETFONT, 0, 0)));
    move_window(frame_, wanted_place());
}

void PlacedControl::take_off(Controls& controls) {
    if (const auto events = std::move(events_))
        events->stop();
    if (const auto changes = std::move(changes_))
        changes->stop();
    if (ControlSite* const site = std::exchange(site_, nullptr))
        controls.remove(*site);
    control_.Reset();
    if (const HWND frame = std::exchange(frame_, nullptr))
        DestroyWindow(frame);
}

FormControl PlacedControl::saved() const {
    FormControl result = form_;
    if (!control_)
        return result;
    result.settings.settings.clear();
    const ComPtr<FormPropertyBag> bag(new FormPropertyBag(result.settings));
    const HRESULT saved = settings_of(control_.Get())->Save(bag.Get(), FALSE, TRUE);
    bag->close();
    check(saved, L"Saving the control");
    result.settings.settings.insert(result.settings.settings.end(), unread_.begin(), unread_.end());
    return result;
}

RECT PlacedControl::wanted_place() const {
    const int left = pixels_of(form_.left), top = pixels_of(form_.top);
    const bool sized = (form_.place_parts & form_width) != 0;
    const int width = sized ? pixels_of(form_.width) : scaled(icon_side);
    const int height = sized ? pixels_of(form_.height) : scaled(icon_side);
    return {left, top, left + std::max(width, 1), top + std::max(height, 1)};
}

RECT PlacedControl::place() const {
    return site_ ? site_->place() : wanted_place();
}

void PlacedControl::move(const RECT& place) {
    form_.left = twips_of(place.left);
    form_.top = twips_of(place.top);
    form_.width = twips_of(place.right - place.left);
    form_.height = twips_of(place.bottom - place.top);
    if (site_)
        site_->move(place);
    else if (frame_)
        move_window(frame_, place);
    take_over_place();
}

void PlacedControl::move_to(std::int32_t FormControl::*edge, std::int32_t twips) {
    if (twips < -most_twips || twips > most_twips)
        throw Failure(L"Places on a form are between -300000 and 300000 twips.");
    form_.*edge = twips;
    if (site_)
        site_->move(wanted_place());
    else if (frame_)
        move_window(frame_, wanted_place());
    take_over_place();
}

// A control that wants another height says so when it is sized.
void PlacedControl::settle() const {
    if (!site_)
        return;
    const RECT before = site_->place(), other = {before.left, before.top, before.right, before.bottom + 1};
    site_->move(other);
    if (EqualRect(&site_->place(), &other))
        site_->move(before);
}

// Pixels are coarser than twips: what still fits stays as it is.
bool PlacedControl::take_over_place() {
    const RECT now = place(), wanted = wanted_place();
    if (EqualRect(&now, &wanted))
        return false;
    const int width = now.right - now.left, height = now.bottom - now.top;
    if (width != wanted.right - wanted.left)
        form_.width = twips_of(width);
    if (height != wanted.bottom - wanted.top)
        form_.height = twips_of(height);
    if (now.left != wanted.left)
        form_.left = twips_of(now.left);
    if (now.top != wanted.top)
        form_.top = twips_of(now.top);
    return true;
}

void PlacedControl::rename(const std::wstring& name) {
    form_.name = utf16(name);
    if (site_)
        site_->rename(name);
    if (frame_)
        SetWindowTextW(frame_, (name + L'\n' + program_id()).c_str());
}

void PlacedControl::show_pages(HWND owner) const {
    ComPtr<IOleObject> object;
    if (!control_)
        throw Failure(name() + L" is not there, only its place is.");
    check(control_.As(&object), L"Asking the control for IOleObject");
    check(object->DoVerb(OLEIVERB_PROPERTIES, nullptr, site_, 0, owner, nullptr), L"Showing the pages");
}

} // namespace vellora::samples
