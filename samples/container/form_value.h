// A setting between its two forms: as a line of a form, and as COM hands it over.
#pragma once

#include "form_text.h"

#include <windows.h>

#include <oaidl.h>

namespace vellora::samples {

/// A call that failed; bags pass its result on.
struct FormValueError {
    HRESULT result;
};

/// Throws what went wrong, if anything did.
void check_value(HRESULT result);

/// A value of a plain type and what is said beside it. Throws a FormValueError for one that a form cannot hold, say an
/// array.
FormSetting plain_setting(std::u16string_view name, const VARIANT& value);
/// As `type`, or as the type that fits best for VT_EMPTY. `value` is neither a record nor an object. Throws a
/// FormValueError when it does not become that type. What comes back is the caller's to clear.
VARIANT plain_variant(const FormValue& value, VARTYPE type);

} // namespace vellora::samples
