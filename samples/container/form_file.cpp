#include "form_file.h"

#include "form_disk.h"
#include "form_name.h"
#include "form_replacement.h"
#include "form_utf8.h"

namespace vellora::samples {

Form read_form_file(const std::filesystem::path& path) {
    const FormFiles files(path);
    const std::optional<FormBlob> bytes = read_file(files.form, FormLimits::text_bytes, "a form file");
    if (!bytes)
        throw FormError(shown(path) + " cannot be opened: there is no such file.");
    const auto companion = [&](const std::u16string& name) {
        const bool is_own = same_name(name, file_name(files.companion));
        const std::filesystem::path beside = path.parent_path() / std::wstring(name.begin(), name.end());
        return read_file(is_own ? files.companion_now() : beside, FormLimits::companion_bytes, "a companion file");
    };
    const std::string_view text(reinterpret_cast<const char*>(bytes->data()), bytes->size());
    return read_form({encode_utf8(file_name(path)), text, companion});
}

void write_form_file(const std::filesystem::path& path, const Form& form) {
    const FormFiles files(path);
    replace_form(files, write_form(form, file_name(files.companion)));
}

} // namespace vellora::samples
