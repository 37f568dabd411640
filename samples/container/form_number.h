// Numbers as they stand in a form.
#pragma once

#include "form_place.h"
#include "form_text.h"

namespace vellora::samples {

/// Fails unless all of the text is a number, and one that a control can have.
FormValue parse_number(std::u16string_view text, const FormPlace& place);
/// A number to base 16 without its marks; nothing when the text is none, or is larger.
std::optional<std::uint32_t> parse_hexadecimal(std::u16string_view text);

std::string number_text(std::int32_t number);
/// The shortest that comes back as the same number, with an exponent only where there are many digits. Throws a
/// FormError for what is not finite.
std::string number_text(double number);
/// Four digits at least.
std::string hexadecimal_text(std::uint32_t number, std::size_t digits = 4);

} // namespace vellora::samples
