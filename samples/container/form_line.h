// What one line of a form says.
#pragma once

#include "form_binary.h"
#include "form_place.h"
#include "form_text.h"

namespace vellora::samples {

enum class FormLineKind { blank, comment, version, begin, end, begin_object, end_object, setting };

struct FormLine {
    FormLineKind kind = FormLineKind::blank;
    /// The class of a control, or the name of an object or a setting.
    std::u16string first = {};
    /// The name of a control, the class of an object, or the number of a version.
    std::u16string second = {};
    FormValue value = {};
    /// Where the value is, instead.
    std::optional<FormReference> reference = {};
    std::u16string comment = {};
};

/// Throws a FormError for a line that is none of a form.
FormLine parse_form_line(std::u16string_view text, const FormPlace& place);

bool starts_with_word(std::u16string_view text, std::u16string_view word);

} // namespace vellora::samples
