// Rows of texts, a text for each column, as a list shows them.
#pragma once

#include <string>
#include <vector>

namespace vellora::samples {

using TextRow = std::vector<std::wstring>;
using TextRows = std::vector<TextRow>;

} // namespace vellora::samples
