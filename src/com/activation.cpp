#include "com/activation.h"

#include "com/control_host.h"
#include "com/parent_watch.h"

#include <utility>

namespace vellora::com {

namespace {

/// Sites answer "not implemented" to what they do not care about.
bool refused(HRESULT result) noexcept {
    return result != S_OK && result != E_NOTIMPL;
}

} // namespace

void Activation::activate(const Proposal& proposal) {
    // A container that has another window now did not say so.
    if (orphaned_)
        deactivate();
    if (in_place())
        return;
    const ComPtr<IOleInPlaceSite> site = permitted_site();
    host_.ensure_initialised();
    if (refused(site->OnInPlaceActivate()))
        throw ComFailure(E_FAIL);
    site_ = site;
    state_ = State::in_place;
    const Place place = find_place(proposal);
    if (!in_place())
        return;
    if (!place.parent) {
        deactivate();
        throw ComFailure(E_FAIL);
    }
    move_in(place);
    if (const ComPtr<IOleClientSite> client_site = host_.site().get(); client_site && in_place())
        client_site->ShowObject();
}

ComPtr<IOleInPlaceSite> Activation::permitted_site() const {
    ComPtr<IOleInPlaceSite> site = host_.site().in_place_site();
    if (!site || refused(site->CanInPlaceActivate()))
        throw ComFailure(E_FAIL);
    return site;
}

Activation::Place Activation::find_place(const Proposal& proposal) {
    Place place;
    const ComPtr<IOleInPlaceSite> site = site_;
    if (refused(site->GetWindow(&place.parent)) || !place.parent)
        place.parent = proposal.parent;
    if (!in_place() || ask_context(place))
        return place;
    const SIZE own = host_.extent().pixels();
    place.position = proposal.position ? *proposal.position : RECT{0, 0, own.cx, own.cy};
    place.clip = place.position;
    return place;
}

bool Activation::ask_context(Place& place) {
    OLEINPLACEFRAMEINFO info = {};
    info.cb = sizeof info;
    ComPtr<IOleInPlaceFrame> frame;
    ComPtr<IOleInPlaceUIWindow> document;
    const ComPtr<IOleInPlaceSite> site = site_;
    const HRESULT result = site->GetWindowContext(&frame, &document, &place.position, &place.clip, &info);
    // Nobody would let go of them after a deactivation inside that call.
    if (in_place()) {
        frame_ = frame;
        document_ = document;
    }
    return result == S_OK && !IsRectEmpty(&place.position);
}

void Activation::move_in(const Place& place) {
    const HWND window = host_.client().window();
    parent_ = place.parent;
    watch_parent(parent_, *this);
    SetParent(window, parent_);
    set_rects(place.position, place.clip);
    if (in_place())
        ShowWindow(window, SW_SHOWNA);
}

void Activation::activate_ui(Focus focus) {
    if (!in_place())
        throw ComFailure(E_FAIL);
    if (!ui_active()) {
        const ComPtr<IOleInPlaceSite> site = site_;
        if (refused(site->OnUIActivate()))
            throw ComFailure(E_FAIL);
        if (!in_place())
            return;
        state_ = State::ui_active;
        become_active_object();
        if (ui_active())
            host_.client().on_ui_activated();
    }
    if (focus == Focus::take && ui_active())
        take_focus();
}

void Activation::become_active_object() {
    ComPtr<IOleInPlaceActiveObject> self;
    host_.controlling()->QueryInterface(IID_PPV_ARGS(&self));
    const ComPtr<IOleInPlaceFrame> frame = frame_;
    const ComPtr<IOleInPlaceUIWindow> document = document_;
    const wchar_t* const name = host_.control_class().user_type;
    if (frame) {
        frame->SetActiveObject(self.Get(), name);
        frame->SetBorderSpace(nullptr);
    }
    if (document) {
        document->SetActiveObject(self.Get(), name);
        document->SetBorderSpace(nullptr);
    }
    // Deactivated inside one of these calls, the control was given to a container that has taken leave of it.
    if (!ui_active())
        give_up_active_object(frame, document);
}

void Activation::take_focus() {
    const HWND window = host_.client().window();
    const HWND focus = GetFocus();
    if (focus != window && !IsChild(window, focus))
        SetFocus(window);
}

void Activation::deactivate_ui() {
    if (!ui_active())
        return;
    state_ = State::in_place;
    const ComPtr<IOleInPlaceSite> site = site_;
    give_up_active_object(frame_, document_);
    // Whatever the control makes of it, the container is told.
    guard([&] { host_.client().on_ui_deactivated(); });
    site->OnUIDeactivate(FALSE);
}

void Activation::give_up_active_object(ComPtr<IOleInPlaceFrame> frame, ComPtr<IOleInPlaceUIWindow> document) {
    if (document)
        document->SetActiveObject(nullptr, nullptr);
    if (frame)
        frame->SetActiveObject(nullptr, nullptr);
}

void Activation::deactivate() {
    if (!in_place())
        return;
    // While everything stands: a list that closes tells the program so, which may do with the control what it likes.
    guard([&] { host_.client().on_deactivated(); });
    deactivate_ui();
    if (!in_place())
        return;
    state_ = State::loaded;
    const ComPtr<IOleInPlaceSite> site = std::move(site_);
    frame_.Reset();
    document_.Reset();
    tell_focus(false);
    leave_parent();
    site->OnInPlaceDeactivate();
}

void Activation::set_rects(const RECT& position, const RECT& clip) {
    position_ = position;
    if (in_place())
        clip_window(position, clip);
    const POINT corner = {position.left, position.top};
    host_.apply_size(size_of(position), in_place() ? &corner : nullptr);
}

/// The container may show the control partly: under its own borders, or scrolled half away.
void Activation::clip_window(const RECT& position, const RECT& clip) {
    RECT visible = {};
    const bool cut = IntersectRect(&visible, &position, &clip) && !EqualRect(&visible, &position);
    if (!cut && !clipped_)
        return;
    OffsetRect(&visible, -position.left, -position.top);
    // The window owns the region from here on.
    SetWindowRgn(host_.client().window(), cut ? CreateRectRgnIndirect(&visible) : nullptr, TRUE);
    clipped_ = cut;
}

void Activation::request_size(SIZE pixels) {
    if (asking_for_size_ || !site_)
        return;
    asking_for_size_ = true;
    const ComPtr<IOleInPlaceSite> site = site_;
    const RECT wanted = {position_.left, position_.top, position_.left + pixels.cx,
                         position_.top + pixels.cy};
    site->OnPosRectChange(&wanted);
    asking_for_size_ = false;
}

void Activation::tell_focus(bool has_focus) {
    if (has_focus_ == has_focus)
        return;
    has_focus_ = has_focus;
    if (const ComPtr<IOleControlSite> site = host_.site().control_site())
        site->OnFocus(has_focus);
}

void Activation::leave_parent() noexcept {
    orphaned_ = in_place();
    unwatch_parent(std::exchange(parent_, nullptr), *this);
    host_.parking().park(host_.client().window());
}

} // namespace vellora::com
