// The frame of the drop-down: a window that paints what lies in it by itself and stays behind the list that
// shares its parent.
#pragma once

#include "runtime/system_colors.h"
#include "widgets/frame.h"
#include "widgets/win32/lifeline.h"
#include "widgets/win32/ole_color.h"
#include "widgets/win32/surface_window.h"
#include "widgets/win32/user_input.h"
#include "widgets/win32/window_widget.h"

#include <vector>

namespace vellora::win32 {

/// A windowless thing in a frame. Places are pixels in the frame's client area.
class FrameContent {
public:
    virtual void paint(HDC dc) const = 0;
    virtual bool takes_mouse_at(POINT point) const = 0;
    /// Each of these may end the frame.
    virtual void mouse_pressed(std::int16_t button) = 0;
    virtual void mouse_moved() = 0;
    virtual void mouse_released() = 0;
    /// Null for the ordinary arrow.
    virtual HCURSOR cursor() const = 0;

protected:
    ~FrameContent() = default;
};

class FramePeer final : public WindowWidget<Frame>, private OwnWindow, private MouseReceiver {
public:
    /// Created hidden and without size. Throws std::bad_alloc without a window. The surface outlives the
    /// peer, and the peer its contents.
    explicit FramePeer(SurfaceWindow& surface);
    ~FramePeer() override = default;

    OleColor back_color() const override { return back_color_; }
    void set_back_color(OleColor color) override;
    std::u16string tag() const override { return tag_; }
    void set_tag(std::u16string_view tag) override { tag_ = tag; }

    /// Later contents lie over earlier ones.
    void add(FrameContent& content) { contents_.push_back(&content); }
    void remove(FrameContent& content);
    void repaint() { redraw(handle()); }
    /// For measuring texts.
    HWND window_handle() const { return handle(); }

private:
    HWND widget_window() const override { return handle(); }
    LRESULT on_message(HWND window, UINT message, WPARAM wparam, LPARAM lparam) override;
    void mouse_moved(POINT point) override;
    void mouse_pressed(std::int16_t button, POINT point) override;
    void mouse_released(std::int16_t button, POINT point) override;
    LRESULT release();
    LRESULT choose_cursor(HWND window, WPARAM wparam, LPARAM lparam);
    LRESULT paint(HWND window);
    FrameContent* content_at(POINT point) const;
    FrameContent* target_of(POINT point) const;

    Lifeline lifeline_;
    std::vector<FrameContent*> contents_;
    FrameContent* pressed_ = nullptr;
    OleColor back_color_ = system_color::button_face;
    ColorBrush background_;
    std::u16string tag_;
};

} // namespace vellora::win32
