// Text on the clipboard.
#pragma once

#include <string>

namespace vellora::test {

/// Empty when there is no text.
std::wstring clipboard_text();
void set_clipboard_text(const std::wstring& text);

} // namespace vellora::test
