// The kinds of characters that Unicode tells apart.
#pragma once

#include <string>
#include <string_view>

namespace vellora::samples {

/// `Lu` becomes "Letter, uppercase". A code that came later stands for itself.
std::wstring category_name(std::string_view code);

} // namespace vellora::samples
