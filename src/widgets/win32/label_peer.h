// A text that its frame paints, as large as it is in its font. It hears of the mouse over it.
#pragma once

#include "runtime/system_colors.h"
#include "widgets/win32/frame_peer.h"
#include "widgets/win32/handles.h"

#include <string>

namespace vellora::win32 {

class LabelPeer final : public Label, private FrameContent {
public:
    /// The frame outlives the label.
    explicit LabelPeer(FramePeer& frame);
    ~LabelPeer();

    void listen(LabelListener* listener) override { listener_ = listener; }
    void set_caption(std::u16string_view caption) override;
    void set_font(std::u16string_view face, float points) override;
    void set_fore_color(OleColor color) override;
    float width() const override;
    float height() const override;
    void move(float left, float top) override;
    std::int32_t pointer() const override { return pointer_; }
    void set_pointer(std::int32_t pointer) override { pointer_ = pointer; }

private:
    void paint(HDC dc) const override;
    bool takes_mouse_at(POINT point) const override;
    void mouse_pressed(std::int16_t button) override;
    void mouse_moved() override;
    void mouse_released() override;
    HCURSOR cursor() const override;
    void measure();

    FramePeer& frame_;
    LabelListener* listener_ = nullptr;
    std::u16string caption_;
    UniqueGdiFont font_;
    OleColor fore_color_ = system_color::button_text;
    RECT place_{};
    std::int32_t pointer_ = mouse_pointer::standard;
};

} // namespace vellora::win32
