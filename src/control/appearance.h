// How the closed control and its list look: colours, font, button style, picture, grid lines, enabled or not.
#pragma once

#include "control/core.h"

namespace vellora {

/// Every setter stores its value, hands it to the constituents concerned and reports its property as changed, also
/// when the value is the one it had. Errors of the constituents pass through.
class Appearance {
public:
    explicit Appearance(ControlCore& core);

    bool Enabled() const;
    /// In design mode only the text box follows, so that the button keeps looking alive.
    void put_Enabled(bool value);

    FontRef Font() const;
    /// Takes the object itself, not a copy. Error 380 for none.
    void putref_Font(const FontRef& font);

    OleColor ForeColor() const;
    void put_ForeColor(OleColor color);
    OleColor BackColor() const;
    void put_BackColor(OleColor color);
    OleColor ButtonForeColor() const;
    void put_ButtonForeColor(OleColor color);
    OleColor ButtonBackColor() const;
    /// Also colours the drop-down's frame, which shows under the resize grip.
    void put_ButtonBackColor(OleColor color);

    std::int32_t ButtonStyle() const;
    /// Error 382 at run time. The value is not checked; all but vlToggle act as vlNormal.
    void put_ButtonStyle(std::int32_t style);

    PictureRef Picture() const;
    /// The list's background; ignored in design mode.
    void putref_Picture(const PictureRef& picture);

    bool GridLines() const;
    void put_GridLines(bool value);

private:
    ControlCore& core_;
};

} // namespace vellora
