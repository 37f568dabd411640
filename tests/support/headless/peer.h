// What all headless constituents share: a window on the simulated desktop, its place in twips and its state.
#pragma once

#include "support/headless/desktop.h"
#include "widgets/widget.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

namespace vellora::test {

/// The twips per pixel of the headless screen. Every peer rounds to whole pixels with it.
struct Screen {
    float twips_per_pixel_x = 15;
    float twips_per_pixel_y = 15;

    std::int32_t pixels_x(float twips) const { return to_pixels(twips, twips_per_pixel_x); }
    std::int32_t pixels_y(float twips) const { return to_pixels(twips, twips_per_pixel_y); }

private:
    static constexpr float farthest = 1'000'000; // pixels; a window system puts nothing beyond

    static std::int32_t to_pixels(float twips, float factor) {
        return static_cast<std::int32_t>(std::lround(std::clamp(twips / factor, -farthest, farthest)));
    }
};

template <class Interface>
class Peer : public Interface, public WindowOwner {
public:
    Peer(Desktop& desktop, const Screen& screen, WindowHandle parent, std::string name)
        : desktop_(desktop), screen_(screen) {
        Desktop::Window window;
        window.name = std::move(name);
        window.parent = parent;
        window.owner = this;
        handle_ = desktop.create(std::move(window));
    }
    ~Peer() override {
        if (!desktop_.exists(handle_)) {
            return;
        }
        desktop_.at(handle_).owner = nullptr;
        desktop_.destroy(handle_);
    }
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;

    WindowHandle window() const override { return handle_; }
    Bounds bounds() const override {
        const PixelRect& rect = desktop_.at(handle_).rect;
        return {static_cast<float>(rect.left) * screen_.twips_per_pixel_x,
                static_cast<float>(rect.top) * screen_.twips_per_pixel_y,
                static_cast<float>(rect.right - rect.left) * screen_.twips_per_pixel_x,
                static_cast<float>(rect.bottom - rect.top) * screen_.twips_per_pixel_y};
    }
    void move(const Bounds& bounds) override {
        const std::int32_t left = screen_.pixels_x(bounds.left);
        const std::int32_t top = screen_.pixels_y(bounds.top);
        desktop_.at(handle_).rect = {left, top, left + screen_.pixels_x(bounds.width),
                                     top + screen_.pixels_y(bounds.height)};
    }
    bool visible() const override { return desktop_.at(handle_).visible; }
    void set_visible(bool visible) override { desktop_.show(handle_, visible); }
    bool enabled() const override { return desktop_.at(handle_).enabled; }
    void set_enabled(bool enabled) override { desktop_.at(handle_).enabled = enabled; }

protected:
    Desktop& desktop() const { return desktop_; }
    const Screen& screen() const { return screen_; }

private:
    Desktop& desktop_;
    const Screen& screen_;
    WindowHandle handle_ = 0;
};

} // namespace vellora::test
