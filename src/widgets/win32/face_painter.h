// The closed field as a picture: what the control's windows show, drawn into any device context, for
// containers that paint a control instead of showing its window.
#pragma once

#include "runtime/system_colors.h"
#include "widgets/win32/button_face.h"
#include "widgets/win32/edit_window.h"

#include <string>

namespace vellora::win32 {

/// Places are pixels in the field's client area.
struct TextFace {
    RECT place{};
    std::u16string text;
    TextAlignment alignment = TextAlignment::left;
    HFONT font = nullptr;
    OleColor fore_color = system_color::window_text;
    OleColor back_color = system_color::window;
    bool enabled = true;
    int left_margin = 0; // pixels
    int right_margin = 0;
};

struct FieldFace {
    SIZE size{}; // outer, in pixels
    OleColor back_color = system_color::window;
    TextFace text_field;
    RECT button_place{};
    ButtonFace button;
};

/// Draws the two pixels around a field, and nothing inside them.
void paint_field_border(HDC dc, const RECT& outer, bool enabled);
/// Draws the field so that it fills `bounds`, in the logical units of `dc`.
void paint_field(HDC dc, const RECT& bounds, const FieldFace& face);

} // namespace vellora::win32
