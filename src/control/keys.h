// Virtual key codes the control acts on. Source: the platform's public header winuser.h.
#pragma once

#include <cstdint>

namespace vellora::key {

inline constexpr std::int16_t backspace = 8;
inline constexpr std::int16_t tab = 9;
inline constexpr std::int16_t enter = 13;
inline constexpr std::int16_t escape = 27;
inline constexpr std::int16_t up = 38;
inline constexpr std::int16_t down = 40;
inline constexpr std::int16_t del = 46;
inline constexpr std::int16_t f4 = 115;

/// Shift in the mask of keys held with another, without Ctrl and Alt.
inline constexpr std::int16_t shift_mask = 1;

} // namespace vellora::key
