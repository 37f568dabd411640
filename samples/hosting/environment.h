// What the program's surroundings tell it by environment variables.
#pragma once

#include <string>

namespace vellora::samples {

/// Empty when the variable is not set.
std::wstring environment(const wchar_t* name);

/// A path as Windows programs write it. One that starts with a slash belongs to the machine that runs Wine,
/// whose root is drive Z.
std::wstring windows_path(std::wstring path);

} // namespace vellora::samples
