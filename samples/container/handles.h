// The eight handles around the chosen control, by which the mouse sizes it.
#pragma once

#include "pane.h"

#include <array>
#include <memory>

namespace vellora::samples {

/// Which edges follow the mouse. A control that is moved as a whole has them all.
enum GripEdge : unsigned { grip_left = 1, grip_top = 2, grip_right = 4, grip_bottom = 8, grip_whole = 15 };

/// A handle sends it to its parent when it is pressed: wparam are the edges it sizes.
constexpr UINT grip_message = WM_APP + 2;

class Handle;

class Handles {
public:
    explicit Handles(HWND surface);
    Handles(const Handles&) = delete;
    Handles& operator=(const Handles&) = delete;
    ~Handles();

    /// Around a place in pixels of the surface, over whatever is there.
    void show(const RECT& place) const;
    void hide() const;

private:
    std::array<std::unique_ptr<Handle>, 8> handles_;
};

} // namespace vellora::samples
