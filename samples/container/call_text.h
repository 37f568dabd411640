// Values as they are typed as arguments and shown as results: numbers, True and False, "text", arrays as {1, 2} and
// tables as {{"a", "b"}, {"c", "d"}}.
#pragma once

#include "hosting/variant.h"

#include <string>

namespace vellora::samples {

/// What a person means by a text where a value of that type is wanted; VT_VARIANT when anything goes. Throws a Failure
/// that says what cannot be understood.
Variant value_of_text(const std::wstring& text, VARTYPE wanted);

std::wstring text_of_value(const VARIANT& value);

} // namespace vellora::samples
