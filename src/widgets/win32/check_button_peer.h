// The drop button as a window of its own: a press takes the mouse and the focus, a release over it toggles
// the value. It is no tab stop; the focus comes to it by a press only.
#pragma once

#include "runtime/system_colors.h"
#include "widgets/check_button.h"
#include "widgets/win32/button_face.h"
#include "widgets/win32/lifeline.h"
#include "widgets/win32/surface_window.h"
#include "widgets/win32/user_input.h"
#include "widgets/win32/window_widget.h"

#include <optional>

namespace vellora::win32 {

class CheckButtonPeer final : public WindowWidget<CheckButton>, private OwnWindow, private MouseReceiver {
public:
    /// Created hidden and without size. `index` goes with every event; `looks_pressed_at` is the value at
    /// which the button looks pressed. Throws std::bad_alloc without a window. The surface outlives the peer.
    CheckButtonPeer(SurfaceWindow& surface, int index, int looks_pressed_at = 1);
    ~CheckButtonPeer() override = default;

    /// How it looks now, for a picture of it.
    ButtonFace face() const;

    void set_visible(bool visible) override;
    void listen(CheckButtonListener* listener) override { listener_ = listener; }
    int value() const override { return value_; }
    void set_value(int value) override;
    std::u16string caption() const override { return caption_; }
    void set_caption(std::u16string_view caption) override;
    OleColor fore_color() const override { return fore_color_; }
    void set_fore_color(OleColor color) override;
    OleColor back_color() const override { return back_color_; }
    void set_back_color(OleColor color) override;

private:
    struct Press {
        std::int16_t button = 0;
        bool inside = true;
    };

    HWND widget_window() const override { return handle(); }
    LRESULT on_message(HWND window, UINT message, WPARAM wparam, LPARAM lparam) override;
    LRESULT key(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
    void mouse_moved(POINT point) override;
    void mouse_pressed(std::int16_t button, POINT point) override;
    void mouse_released(std::int16_t button, POINT point) override;
    LRESULT mouse_left();
    bool is_down() const { return value_ == looks_pressed_at_; }
    LRESULT paint(HWND window);
    void cancel_press();
    void toggle();
    void tell_released();
    bool contains(POINT point) const;

    Lifeline lifeline_;
    FocusTracker& focus_;
    CheckButtonListener* listener_ = nullptr;
    int index_;
    int looks_pressed_at_;
    int value_ = 0;
    std::u16string caption_;
    OleColor fore_color_ = system_color::button_text;
    OleColor back_color_ = system_color::button_face;
    std::optional<DWORD> changed_at_; // by GetTickCount
    std::optional<Press> press_;
    bool space_held_ = false;
    bool hot_ = false;
};

} // namespace vellora::win32
