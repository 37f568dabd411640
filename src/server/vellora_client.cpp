#include "server/vellora_client.h"

#include "com/control_host.h"
#include "server/accessible_combo.h"
#include "server/closed_face.h"
#include "server/message_module.h"
#include "server/property_categories.h"
#include "server/saved_values.h"

namespace vellora::server {

namespace {

// Width of a control that no container sized, in pixels at 96 dpi: that of a text box fresh from a form designer.
constexpr int natural_width = 121;

bool moves_in_child(WPARAM key) {
    switch (key) {
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN:
    case VK_HOME:
    case VK_END:
    case VK_PRIOR:
    case VK_NEXT:
        return true;
    default:
        return false;
    }
}

// What the open list has a use for, also with Shift and Ctrl.
bool belongs_to_list(WPARAM key) {
    return moves_in_child(key) || key == VK_RETURN || key == VK_ESCAPE || key == VK_F6 || key == VK_ADD;
}

bool modified() { return GetKeyState(VK_CONTROL) < 0 || GetKeyState(VK_MENU) < 0; }

} // namespace

VelloraClient::VelloraClient(com::ControlHost& host)
    : host_(host), peers_(host.parking_window(), compare_, this), events_(host), site_(host),
      library_(host), control_({peers_.references(), peers_.surface, site_, events_, peers_.user32,
                                peers_.form_watch, message_module(), library_}),
      dual_(host, control_) {
    peers_.surface.set_host(this);
}

VelloraClient::~VelloraClient() { peers_.surface.set_host(nullptr); }

void* VelloraClient::interface_of(REFIID id) {
    if (id == __uuidof(::_Vellora) || id == IID_IDispatch) {
        return static_cast<::_Vellora*>(&dual_);
    }
    return nullptr;
}

HWND VelloraClient::window() { return peers_.surface.handle(); }

SIZE VelloraClient::natural_size() {
    const float pixel = peers_.surface.twips_per_pixel_y();
    const int dpi = static_cast<int>(1440 / pixel);
    const int height = static_cast<int>(control_.layout().automatic_height() / pixel);
    return {MulDiv(natural_width, dpi, 96), height};
}

// The window has told the layout already.
void VelloraClient::on_resized() {}

void VelloraClient::draw(HDC dc, const RECT& bounds) {
    win32::paint_field(dc, bounds, closed_face(peers_, control_.state()));
}

// Ambients are asked for when they are needed.
void VelloraClient::on_ambient_changed(DISPID) {}

void VelloraClient::initialise_new() { control_.object().InitProperties(); }

void VelloraClient::load(com::PropertyStore& store) {
    SavedValues values(store);
    control_.persistence().ReadProperties(values);
}

void VelloraClient::save(com::PropertyStore& store) {
    SavedValues values(store);
    control_.persistence().WriteProperties(values);
}

void VelloraClient::on_deactivated() {
    if (list_open()) {
        control_.drop_down().subCloseDropDown();
    }
}

// The focus is where the user put it; a list that is left closes by itself.
void VelloraClient::on_ui_activated() {}
void VelloraClient::on_ui_deactivated() {}

com::KeyRoute VelloraClient::translate_key(const MSG& message) {
    const WPARAM key = message.wParam;
    const bool own = list_open() ? belongs_to_list(key) : moves_in_child(key) && !modified();
    return own && message.message == WM_KEYDOWN ? com::KeyRoute::child : com::KeyRoute::container;
}

com::Mnemonics VelloraClient::mnemonics() {
    com::Mnemonics none;
    none.flags = list_open() ? CTRLINFO_EATS_RETURN | CTRLINFO_EATS_ESCAPE : 0;
    return none;
}

// No key is announced, but a host that sends one wants the field.
void VelloraClient::on_mnemonic(const MSG&) {
    if (peers_.surface.shown()) {
        SetFocus(window());
    }
}

bool VelloraClient::list_open() {
    return control_.state().mlStatic_hWnd != 0;
}

std::optional<com::PropertyCategory> VelloraClient::category(DISPID property) {
    return property_category(property);
}

void VelloraClient::surface_wants_height(int pixels) { host_.request_size({host_.size().cx, pixels}); }

void VelloraClient::surface_focus_entered() { host_.request_ui_activation(); }

void VelloraClient::surface_focus_left() { host_.focus_left(); }

// An open list eats Enter and Esc, which are the form's otherwise.
void VelloraClient::surface_list_opened_or_closed() { host_.control_info_changed(); }

LRESULT VelloraClient::surface_object(HWND window, WPARAM wparam, LPARAM lparam) {
    const AccessibleControl control{&control_.accessibility(), win32::Lifeline::Watch(lifeline_),
                                    peers_.surface.handle()};
    return accessible_object(window, wparam, lparam, control);
}

void VelloraClient::close_requested() {
    const com::Hold held = host_.hold();
    control_.drop_down().HideList();
}

void VelloraClient::floating_window_left() {
    const com::Hold held = host_.hold();
    control_.drop_down().subCloseDropDown();
}

} // namespace vellora::server
