// The system colours that a control starts with; the user's colour scheme says what they look like.
#pragma once

#include "runtime/geometry.h"

namespace vellora::system_color {

inline constexpr OleColor window = 0x80000005;
inline constexpr OleColor window_text = 0x80000008;
inline constexpr OleColor button_face = 0x8000000F;
inline constexpr OleColor button_shadow = 0x80000010;
inline constexpr OleColor button_text = 0x80000012;
inline constexpr OleColor button_highlight = 0x80000014;

} // namespace vellora::system_color
