// The characters of Unicode, from the table of the package unicode-data.
#pragma once

#include "hosting/text_rows.h"

namespace vellora::samples {

/// Character, Code point, Name, Category. The file is looked for in the folder that VELLORA_UNICODE names.
/// Throws a Failure when it is missing or damaged.
TextRows read_unicode_characters();

} // namespace vellora::samples
