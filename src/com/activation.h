// The in-place life of the control: loaded, shown in the container's window, and worked with by the user.
// Containers call in any order and from inside our calls to them, so every step looks again at where it is.
#pragma once

#include "com/ole.h"

#include <optional>

namespace vellora::com {

class ControlHost;

class Activation {
public:
    enum class Focus { take, keep };
    /// Where the container wants the control when it cannot say so itself.
    struct Proposal {
        HWND parent = nullptr;
        const RECT* position = nullptr;
    };

    explicit Activation(ControlHost& host) : host_(host) {}
    Activation(const Activation&) = delete;
    Activation& operator=(const Activation&) = delete;

    bool in_place() const noexcept { return state_ != State::loaded; }
    bool ui_active() const noexcept { return state_ == State::ui_active; }

    /// Shows the control in place. Throws ComFailure when the container does not let it.
    void activate(const Proposal& proposal);
    void activate_ui(Focus focus);
    void deactivate_ui();
    /// Back to the loaded state, the window back to the parking window.
    void deactivate();

    /// Position in the container's window and the part of that window the control may show in.
    void set_rects(const RECT& position, const RECT& clip);
    /// Asks the container for another size. It answers through set_rects, or not at all.
    void request_size(SIZE pixels);
    void tell_focus(bool has_focus);

    /// The container's window is going: takes the control's window out of it.
    void leave_parent() noexcept;

private:
    enum class State { loaded, in_place, ui_active };
    struct Place {
        HWND parent = nullptr;
        RECT position = {};
        RECT clip = {};
    };

    ComPtr<IOleInPlaceSite> permitted_site() const;
    Place find_place(const Proposal& proposal);
    bool ask_context(Place& place);
    void move_in(const Place& place);
    void clip_window(const RECT& position, const RECT& clip);
    void become_active_object();
    void give_up_active_object(ComPtr<IOleInPlaceFrame> frame, ComPtr<IOleInPlaceUIWindow> document);
    void take_focus();

    ControlHost& host_;
    State state_ = State::loaded;
    bool has_focus_ = false;
    bool clipped_ = false;
    bool orphaned_ = false; // in place still, but the container's window is gone
    bool asking_for_size_ = false;
    RECT position_ = {};
    HWND parent_ = nullptr;
    ComPtr<IOleInPlaceSite> site_;
    ComPtr<IOleInPlaceFrame> frame_;
    ComPtr<IOleInPlaceUIWindow> document_;
};

} // namespace vellora::com
