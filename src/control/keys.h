// Virtual key codes the control acts on. Source: the platform's public header winuser.h.
#pragma once

#include <cstdint>

namespace vellora::key {

inline constexpr std::int16_t backspace = 8;
inline constexpr std::int16_t tab = 9;
inline constexpr std::int16_t enter = 13;
inline constexpr std::int16_t escape = 27;
inline constexpr std::int16_t space = 32;
inline constexpr std::int16_t page_up = 33;
inline constexpr std::int16_t page_down = 34;
inline constexpr std::int16_t end = 35;
inline constexpr std::int16_t home = 36;
inline constexpr std::int16_t left = 37;
inline constexpr std::int16_t up = 38;
inline constexpr std::int16_t right = 39;
inline constexpr std::int16_t down = 40;
inline constexpr std::int16_t del = 46;
inline constexpr std::int16_t add = 107; // on the number pad
inline constexpr std::int16_t f4 = 115;
inline constexpr std::int16_t f6 = 117;

/// Masks of the keys held with another: Shift without Ctrl and Alt, and so on.
inline constexpr std::int16_t shift_mask = 1;
inline constexpr std::int16_t control_mask = 2;

} // namespace vellora::key
