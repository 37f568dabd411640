// The drop-down's frame, its border lines and the labels of the resize grip, without a screen.
#pragma once

#include "support/headless/peer.h"
#include "widgets/frame.h"

namespace vellora::test {

class HeadlessFrame : public Peer<Frame> {
public:
    using Peer::Peer;
    OleColor back_color() const override { return back_color_; }
    void set_back_color(OleColor color) override { back_color_ = color; }
    std::u16string tag() const override { return tag_; }
    void set_tag(std::u16string_view tag) override { tag_ = tag; }

private:
    OleColor back_color_ = 0;
    std::u16string tag_;
};

class HeadlessLine : public Line {
public:
    Ends ends() const override { return ends_; }
    void set_ends(const Ends& ends) override { ends_ = ends; }

private:
    Ends ends_;
};

/// A glyph of one em square: as wide and high as its points, 20 twips each.
class HeadlessLabel : public Label {
public:
    void listen(LabelListener* listener) override { listener_ = listener; }
    LabelListener* listener() const { return listener_; }
    void set_caption(std::u16string_view text) override { caption = text; }
    void set_font(std::u16string_view font_face, float font_points) override {
        face = font_face;
        points = font_points;
    }
    void set_fore_color(OleColor color) override { fore_color = color; }
    float width() const override { return points * 20; }
    float height() const override { return points * 20; }
    void move(float to_left, float to_top) override {
        left = to_left;
        top = to_top;
    }
    std::int32_t pointer() const override { return pointer_; }
    void set_pointer(std::int32_t pointer) override { pointer_ = pointer; }

    std::u16string caption;
    std::u16string face;
    float points = 8;
    OleColor fore_color = 0;
    float left = 0;
    float top = 0;

private:
    LabelListener* listener_ = nullptr;
    std::int32_t pointer_ = mouse_pointer::standard;
};

} // namespace vellora::test
