// How the mouse and the arrow keys move and size what is chosen on a form.
#pragma once

#include "handles.h"

#include <functional>

namespace vellora::samples {

/// `place` with the edges moved by so many pixels; it never gets smaller than a grid step.
RECT pulled(const RECT& place, unsigned edges, POINT by);

/// The same by an arrow key: a grid step, or a pixel with `fine`. Other keys leave the place as it is.
RECT nudged(const RECT& place, WPARAM key, bool sizes, bool fine);

/// A mouse button held down over something that follows the mouse.
class DesignDrag {
public:
    /// `move` puts what is dragged somewhere.
    void begin(POINT mouse, const RECT& place, unsigned edges, std::function<void(const RECT&)> move);
    bool active() const noexcept { return move_ != nullptr; }
    /// Whether the mouse has left the place where it was pressed.
    bool moved() const noexcept { return moved_; }
    void follow(POINT mouse);
    void end() noexcept { move_ = nullptr; }
    /// Puts it back where it was.
    void cancel();

private:
    POINT start_{};
    RECT before_{};
    unsigned edges_ = 0;
    bool moved_ = false;
    std::function<void(const RECT&)> move_;
};

} // namespace vellora::samples
