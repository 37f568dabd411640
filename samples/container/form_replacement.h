// New files of a form in place of the old ones. Two files cannot change places at once, so the new ones are written
// beside them first, and the old companion file steps aside until the new form is in its place: as long as a new form
// still waits, the companion file that stepped aside is the one that counts.
#pragma once

#include "form_text.h"

#include <filesystem>

namespace vellora::samples {

/// The paths that a form has to do with.
struct FormFiles {
    /// Throws a FormError for a path that is a companion file's.
    explicit FormFiles(const std::filesystem::path& path);

    std::filesystem::path form, companion;
    /// Of this form alone: forms whose names differ in their endings share the name of a companion file.
    std::filesystem::path new_form, new_companion, old_companion;

    /// Where the companion file is now, after a save that may have ended half way.
    const std::filesystem::path& companion_now() const;
};

/// Throws a FormError and leaves what was there when that is not possible.
void replace_form(const FormFiles& files, const FormText& text);

} // namespace vellora::samples
