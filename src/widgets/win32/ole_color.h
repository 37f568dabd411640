// OLE colours as the window system's own.
#pragma once

#include "runtime/geometry.h"
#include "widgets/win32/handles.h"

namespace vellora::win32 {

/// Error 380 when the number is no colour.
COLORREF to_color_ref(OleColor color);
/// Returns the colour unchanged. Error 380 when the number is no colour.
OleColor checked_color(OleColor color);

/// A brush that is made again only when its colour turned into another one, also by a new colour scheme.
class ColorBrush {
public:
    /// Stays the owner's. `color` must be a colour.
    HBRUSH get(OleColor color);

private:
    UniqueBrush brush_;
    COLORREF color_ = 0;
};

} // namespace vellora::win32
