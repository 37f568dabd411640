// The closed form of the control: text field on the left, drop button on the right, height from the font.
#pragma once

#include "control/core.h"

namespace vellora {

class Layout {
public:
    explicit Layout(ControlCore& core);

    /// One layout pass, whenever the host sizes the control. The first pass gives the control the height of its font;
    /// later ones keep another height only while AutoHeight is off. Error 6 when a length in twips leaves 16 bits;
    /// passes after a failed one place nothing.
    void Resize();

    /// The height that goes with the font, in twips. Error 6 as above.
    float automatic_height() const;

    bool AutoHeight() const;
    void put_AutoHeight(bool value);

private:
    void lay_out();
    void place_text_boxes(float width, float height);
    void place_buttons(float width, float height);
    void mark_frame_style();

    ControlCore& core_;
};

} // namespace vellora
