// Text between UTF-16, as controls have it, and UTF-8, as form files have it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vellora::samples {

/// Halves of surrogate pairs, which controls may well hold, become three bytes of their own and come back.
std::string encode_utf8(std::u16string_view text);

/// Nothing for what is not UTF-8.
std::optional<std::u16string> decode_utf8(std::string_view bytes);

/// Whether every surrogate is half of a pair, as text files must have it.
bool has_whole_characters(std::u16string_view text);

} // namespace vellora::samples
