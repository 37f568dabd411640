// Fonts and pictures in words, so that a person can read and type them where other values are.
#pragma once

#include "property_list.h"
#include "variant.h"

#include <string>

namespace vellora::samples {

/// A font as "Tahoma, 8.25, bold"; of other objects only that there is one: "(picture)", "(object)", "(none)".
std::wstring text_of_object(PropertyKind kind, VARIANT& value);

/// The object that such words mean. A font is changed in what the words say: name, size in points, then any of bold,
/// italic, underline, strikethrough. A picture is the path of its file, "(none)" or nothing for none.
/// Throws a Failure that says what cannot be understood.
Variant object_of_text(PropertyKind kind, const std::wstring& text);

} // namespace vellora::samples
