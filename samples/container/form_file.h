// A form in its file: the text, and beside it the companion file of the same name that ends in .frx. One program at a
// time saves a form: its steps would meet those of another.
#pragma once

#include "form_text.h"

#include <filesystem>

namespace vellora::samples {

/// Changes no file. Throws a FormError.
Form read_form_file(const std::filesystem::path& path);

/// Replaces both files together: when that fails or ends half way, the old ones are what is read. Throws a FormError.
void write_form_file(const std::filesystem::path& path, const Form& form);

} // namespace vellora::samples
