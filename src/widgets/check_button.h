// The drop button: a check-box button in graphical style that stays down while its value is 1.
#pragma once

#include "widgets/widget.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace vellora {

/// The captions of a drop button: Marlett, the platform's symbol font, draws an arrow for each.
inline constexpr std::u16string_view up_arrow = u"5";
inline constexpr std::u16string_view down_arrow = u"6";

class CheckButtonListener {
public:
    /// The value changed, by a click or by set_value. `index` is the element of the control array.
    virtual void button_clicked(int index) = 0;
    virtual void button_pressed(int index) = 0;
    virtual void button_released(int index) = 0;

protected:
    ~CheckButtonListener() = default;
};

/// A press takes the focus and the mouse capture; a release inside toggles the value. A press whose capture
/// is taken away, or whose button is hidden meanwhile, ends without a click.
class CheckButton : public Widget {
public:
    virtual void listen(CheckButtonListener* listener) = 0;

    /// 0 raised, 1 pressed. Setting another value raises button_clicked, as the host's check box does.
    virtual int value() const = 0;
    virtual void set_value(int value) = 0;
    /// Drawn in Marlett.
    virtual std::u16string caption() const = 0;
    virtual void set_caption(std::u16string_view caption) = 0;
    virtual OleColor fore_color() const = 0;
    virtual void set_fore_color(OleColor color) = 0;
    virtual OleColor back_color() const = 0;
    virtual void set_back_color(OleColor color) = 0;
};

} // namespace vellora
