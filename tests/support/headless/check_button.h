// A drop button without a screen. Its user side is in user.h.
#pragma once

#include "support/headless/peer.h"
#include "widgets/check_button.h"

namespace vellora::test {

class HeadlessCheckButton : public Peer<CheckButton> {
public:
    HeadlessCheckButton(Desktop& desktop, const Screen& screen, WindowHandle parent, std::string name,
                        int index)
        : Peer(desktop, screen, parent, std::move(name)), index_(index) {}

    void listen(CheckButtonListener* listener) override { listener_ = listener; }
    int value() const override { return value_; }
    void set_value(int value) override;
    std::u16string caption() const override { return caption_; }
    void set_caption(std::u16string_view caption) override { caption_ = caption; }
    OleColor fore_color() const override { return fore_color_; }
    void set_fore_color(OleColor color) override { fore_color_ = color; }
    OleColor back_color() const override { return back_color_; }
    void set_back_color(OleColor color) override { back_color_ = color; }

    /// The mouse goes down on the button, and up again inside it.
    void press();
    void release();
    bool is_pressed() const { return pressed_; }

private:
    int index_;
    CheckButtonListener* listener_ = nullptr;
    int value_ = 0;
    bool pressed_ = false;
    std::u16string caption_ = u"6";
    OleColor fore_color_ = 0x80000012;
    OleColor back_color_ = 0x8000000F;
};

} // namespace vellora::test
