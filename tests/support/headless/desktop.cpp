// The simulated window system: who exists, who has the focus, and which procedure gets a message.
#include "support/headless/desktop.h"

#include "runtime/host_error.h"
#include "widgets/user32.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace vellora::test {

namespace {

// Whoever moves the focus hears nothing of what goes wrong in the windows that lose and get it: an error ends at
// their procedures.
template <class Notice>
void guarded(Notice notice) {
    try {
        notice();
    } catch (const HostError&) {
    }
}

} // namespace

WindowHandle Desktop::create(Window window) {
    const WindowHandle handle = next_handle_;
    next_handle_ += 2;
    windows_.emplace(handle, std::move(window));
    return handle;
}

void Desktop::destroy(WindowHandle window) {
    if (!exists(window)) {
        return;
    }
    if (is_inside(focus_, window)) {
        set_focus(surviving_ancestor(window));
    }
    send(window, message::destroy, 0, 0);
    std::vector<WindowHandle> children;
    for (const auto& [handle, entry] : windows_) {
        if (entry.parent == window) {
            children.push_back(handle);
        }
    }
    for (WindowHandle child : children) {
        destroy(child);
    }
    forget(window);
}

void Desktop::forget(WindowHandle window) {
    if (focus_ == window) {
        focus_ = 0;
    }
    if (capture_ == window) {
        capture_ = 0;
    }
    windows_.erase(window);
}

WindowHandle Desktop::surviving_ancestor(WindowHandle window) const {
    const WindowHandle parent = at(window).parent;
    return exists(parent) ? parent : 0;
}

Desktop::Window& Desktop::at(WindowHandle window) {
    return const_cast<Window&>(std::as_const(*this).at(window));
}

const Desktop::Window& Desktop::at(WindowHandle window) const {
    const auto found = windows_.find(window);
    if (found != windows_.end()) {
        return found->second;
    }
    ADD_FAILURE() << "window " << window << " does not exist";
    spare_ = Window{};
    return spare_;
}

std::string Desktop::name(WindowHandle window) const {
    if (window == 0) {
        return "none";
    }
    return exists(window) ? at(window).name : "gone";
}

std::size_t Desktop::count(const std::string& name) const {
    std::size_t found = 0;
    for (const auto& [handle, window] : windows_) {
        found += window.name == name ? 1U : 0U;
    }
    return found;
}

PixelRect Desktop::screen_rect(WindowHandle window) const {
    const Window& here = at(window);
    PixelRect rect = here.rect;
    if (!exists(here.parent)) {
        return rect;
    }
    const PixelRect outer = screen_rect(here.parent);
    return {rect.left + outer.left, rect.top + outer.top, rect.right + outer.left, rect.bottom + outer.top};
}

bool Desktop::is_inside(WindowHandle window, WindowHandle ancestor) const {
    while (exists(window)) {
        if (window == ancestor) {
            return true;
        }
        window = at(window).parent;
    }
    return false;
}

void Desktop::show(WindowHandle window, bool visible) {
    Window& here = at(window);
    here.visible = visible;
    if (visible) {
        return;
    }
    if (capture_ == window) {
        set_capture(0);
    }
    if (is_inside(focus_, window)) {
        set_focus(here.parent);
    }
}

void Desktop::set_focus(WindowHandle window) {
    if (window == focus_ || (window != 0 && (!exists(window) || !at(window).enabled))) {
        return;
    }
    journal_.add(Journal::Kind::system, "focus " + name(window));
    const WindowHandle old = std::exchange(focus_, window);
    if (exists(old)) {
        guarded([&] { send(old, message::kill_focus, static_cast<std::uintptr_t>(window), 0); });
    }
    if (focus_ == window && exists(window)) {
        guarded([&] { send(window, got_focus_message, static_cast<std::uintptr_t>(old), 0); });
    }
    for (FocusObserver* observer : std::vector<FocusObserver*>(observers_)) {
        if (focus_ == window) {
            guarded([&] { observer->focus_moved(old, window); });
        }
    }
}

void Desktop::set_capture(WindowHandle window) {
    if (window == capture_) {
        return;
    }
    const WindowHandle old = std::exchange(capture_, window);
    if (exists(old) && at(old).owner != nullptr) {
        at(old).owner->capture_lost();
    }
}

std::intptr_t Desktop::send(WindowHandle window, std::uint32_t message, std::uintptr_t wparam,
                            std::intptr_t lparam) {
    if (!exists(window)) {
        return 0;
    }
    return call(at(window).procedure, window, message, wparam, lparam);
}

std::intptr_t Desktop::call(WindowProcedure procedure, WindowHandle window, std::uint32_t message,
                            std::uintptr_t wparam, std::intptr_t lparam) {
    if (procedure == procedure::replaced && receiver_ != nullptr) {
        return receiver_->message_passed(window, message, wparam, lparam);
    }
    if (procedure != procedure::own) {
        ADD_FAILURE() << "no such window procedure: " << procedure;
        return 0;
    }
    if (!exists(window) || at(window).owner == nullptr) {
        return 0;
    }
    return at(window).owner->handle_message(message, wparam, lparam);
}

} // namespace vellora::test
