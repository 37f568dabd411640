// How a drop button looks: the platform's own combo-box button as long as its colours are the system's, a
// plain raised button in the given colours otherwise.
#pragma once

#include "runtime/system_colors.h"

#include <windows.h>

#include <string>

namespace vellora::win32 {

struct ButtonFace {
    std::u16string caption; // in Marlett; nothing stands for the down arrow
    OleColor fore_color = system_color::button_text;
    OleColor back_color = system_color::button_face;
    bool pressed = false;
    bool enabled = true;
    bool hot = false; // the mouse is over it
};

/// Into any device context; `place` is in its logical units.
void paint_button(HDC dc, const RECT& place, const ButtonFace& face);

} // namespace vellora::win32
