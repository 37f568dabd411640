// The screen's resolution, and lengths between twips and its pixels.
#pragma once

namespace vellora::win32 {

/// Twips per pixel as whole numbers: 15 at 96 dots per inch, 12 at 120, 10 at 144. Never 0.
int twips_per_pixel_x();
int twips_per_pixel_y();

/// Rounded to the nearest pixel. What no window could have is cut to 32767 pixels on either side of 0.
int pixels_x(float twips);
int pixels_y(float twips);
float twips_x(int pixels);
float twips_y(int pixels);

} // namespace vellora::win32
