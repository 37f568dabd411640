// A line that its frame paints, one pixel wide.
#pragma once

#include "widgets/win32/frame_peer.h"

namespace vellora::win32 {

class LinePeer final : public Line, private FrameContent {
public:
    /// The frame outlives the line.
    explicit LinePeer(FramePeer& frame);
    ~LinePeer();

    Ends ends() const override { return ends_; }
    void set_ends(const Ends& ends) override;

private:
    void paint(HDC dc) const override;
    bool takes_mouse_at(POINT) const override { return false; }
    void mouse_pressed(std::int16_t) override {}
    void mouse_moved() override {}
    void mouse_released() override {}
    HCURSOR cursor() const override { return nullptr; }

    FramePeer& frame_;
    Ends ends_;
};

} // namespace vellora::win32
