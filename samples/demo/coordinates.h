// Places on earth as people read them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vellora::samples {

/// `+2518+05518` becomes 25°18' N  55°18' E. Seconds are left out. Nothing for what is not written as degrees
/// and minutes, or degrees, minutes and seconds, of latitude and longitude.
std::optional<std::wstring> readable_coordinates(std::string_view iso_6709);

} // namespace vellora::samples
