#include "form_replacement.h"

#include "form_disk.h"
#include "form_name.h"
#include "form_utf8.h"

#include <algorithm>

namespace vellora::samples {

using std::filesystem::path;

namespace {

path with(const path& file, const wchar_t* ending) {
    return path(file.native() + ending);
}

/// A unit for each byte: the code of a program need not be UTF-8.
std::u16string bytes_of(std::string_view text) {
    std::u16string units(text.size(), u'\0');
    std::ranges::transform(text, units.begin(), [](char byte) { return static_cast<unsigned char>(byte); });
    return units;
}

/// Whether a form in that file names the companion file, which is another form's otherwise.
bool mentions_companion(const FormFiles& files, const path& form) {
    if (!file_exists(form))
        return false;
    const FormBlob bytes = read_file(form, FormLimits::text_bytes, "a form file").value_or(FormBlob());
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    const std::string mark = '"' + encode_utf8(file_name(files.companion)) + "\":";
    return folded(bytes_of(text)).find(folded(bytes_of(mark))) != std::u16string::npos;
}

/// Whether the first companion file of the form is in its place already, and the form that names it is not.
bool came_too_early(const FormFiles& files) {
    return !file_exists(files.new_companion) && mentions_companion(files, files.new_form) &&
           !mentions_companion(files, files.form);
}

/// What stayed would tell the next save of an end that was not.
void clear_away(const path& rest) {
    remove_file(rest);
    if (file_exists(rest))
        throw FormError(shown(rest) + " is in the way: another program has it open.");
}

/// Puts things right after a save that ended half way. One whose new form is in its place has only its rest to lose.
void recover(const FormFiles& files) {
    if (file_exists(files.old_companion) && file_exists(files.new_form))
        move_file(files.old_companion, files.companion);
    if (came_too_early(files))
        remove_file(files.companion);
    clear_away(files.old_companion);
    clear_away(files.new_form);
    remove_file(files.new_companion);
}

void check_companion(const FormFiles& files, const FormText& text, bool owned) {
    if (owned)
        check_changeable(files.companion);
    else if (!text.companion.empty() && file_exists(files.companion))
        throw FormError(shown(files.form) + " cannot be written: its companion file " + shown(files.companion) +
                        " belongs to another form. Choose another name.");
}

/// The companion first: a new form without one beside it means that it is in its place.
void write_new(const FormFiles& files, const FormText& text) {
    if (!text.companion.empty())
        write_file(files.new_companion, text.companion, files.form);
    write_file(files.new_form, std::as_bytes(std::span(text.text)), files.form);
}

void change_places(const FormFiles& files, const FormText& text, bool owned) {
    if (owned && file_exists(files.companion))
        move_file(files.companion, files.old_companion);
    if (!text.companion.empty())
        move_file(files.new_companion, files.companion);
    move_file(files.new_form, files.form);
}

} // namespace

FormFiles::FormFiles(const path& file)
    : form(file), companion(path(file).replace_extension(L".frx")), new_form(with(form, L".~new")),
      new_companion(with(form, L".~new.frx")), old_companion(with(form, L".~old.frx")) {
    if (same_name(file_name(form), file_name(companion)))
        throw FormError(shown(form) + " is the name of a companion file. A form file has another ending, say .frm.");
}

const path& FormFiles::companion_now() const {
    return file_exists(old_companion) && file_exists(new_form) ? old_companion : companion;
}

void replace_form(const FormFiles& files, const FormText& text) {
    recover(files);
    check_changeable(files.form);
    const bool owned = mentions_companion(files, files.form);
    check_companion(files, text, owned);
    try {
        write_new(files, text);
        change_places(files, text, owned);
    } catch (...) {
        recover(files);
        throw;
    }
    remove_file(files.old_companion);
}

} // namespace vellora::samples
