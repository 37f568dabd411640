// The headless surface: sizes come from the container, and a new one runs the control's layout.
#include "support/headless/surface.h"

#include "widgets/user32.h"

#include <utility>

namespace vellora::test {

HeadlessSurface::HeadlessSurface(Desktop& desktop, const Screen& screen, WindowHandle container,
                                 std::string name)
    : desktop_(desktop), screen_(screen) {
    Desktop::Window window;
    window.name = std::move(name);
    window.parent = container;
    window.owner = this;
    handle_ = desktop.create(window);
    desktop.observe_focus(this);
}

HeadlessSurface::~HeadlessSurface() {
    desktop_.stop_observing(this);
    if (desktop_.exists(handle_)) {
        desktop_.at(handle_).owner = nullptr;
    }
    desktop_.destroy(handle_);
}

void HeadlessSurface::resize(float width, float height) {
    width_ = width;
    height_ = height;
    fit_window();
    if (listener_ != nullptr) {
        listener_->surface_resized();
    }
}

void HeadlessSurface::tell_font_changed() {
    if (listener_ != nullptr) {
        listener_->surface_font_changed();
    }
}

void HeadlessSurface::set_enabled(bool value) {
    enabled = value;
    if (!value && listener_ != nullptr) {
        listener_->surface_withdrawn();
    }
}

void HeadlessSurface::set_height(float height) {
    if (grants_height && height != height_) {
        resize(width_, height);
    }
}

std::intptr_t HeadlessSurface::handle_message(std::uint32_t message, std::uintptr_t, std::intptr_t) {
    if (message == got_focus_message) {
        take_focus();
    }
    if (message == message::kill_focus) {
        lose_focus();
    }
    if (message == message::destroy && listener_ != nullptr) {
        listener_->surface_destroyed();
    }
    return 0;
}

void HeadlessSurface::take_focus() {
    const WindowHandle next = tab_stop ? tab_stop() : 0;
    if (next != 0) {
        passing_focus_on_ = true;
        desktop_.set_focus(next);
        passing_focus_on_ = false;
    }
}

// A focus that only passes through was never the surface's own.
void HeadlessSurface::lose_focus() {
    if (!std::exchange(passing_focus_on_, false) && listener_ != nullptr) {
        listener_->surface_lost_focus();
    }
}

bool HeadlessSurface::owns(WindowHandle window) const {
    return desktop_.is_inside(window, handle_) || (is_ours && is_ours(window));
}

void HeadlessSurface::focus_moved(WindowHandle from, WindowHandle to) {
    if (owns(from) && !owns(to) && listener_ != nullptr) {
        listener_->surface_focus_left();
    }
}

float HeadlessSurface::text_height(std::u16string_view text) const {
    measured = text;
    const auto* known = dynamic_cast<const HeadlessFont*>(font.get());
    return known != nullptr ? known->line_height : 0;
}

void HeadlessSurface::place(std::int32_t left, std::int32_t top) {
    PixelRect& rect = desktop_.at(handle_).rect;
    rect.left = left;
    rect.top = top;
    fit_window();
}

void HeadlessSurface::fit_window() {
    PixelRect& rect = desktop_.at(handle_).rect;
    rect.right = rect.left + screen_.pixels_x(width_);
    rect.bottom = rect.top + screen_.pixels_y(height_);
}

} // namespace vellora::test
