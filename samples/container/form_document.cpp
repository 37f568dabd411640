#include "form_document.h"

#include "first_form.h"
#include "form_file.h"
#include "wide_text.h"

#include <algorithm>

namespace vellora::samples {

namespace {

std::wstring summary(const FormSurface& surface) {
    const auto missing = std::ranges::count_if(surface.controls(), [](const auto& one) { return !one->control(); });
    if (missing == 0)
        return {};
    const std::wstring kept =
        missing == 1 ? L" One control cannot be had here; a frame stands in its place, and it is kept. "
                     : L" " + std::to_wstring(missing) +
                           L" controls cannot be had here; frames stand in their places, and they are kept. ";
    return kept + surface.problem();
}

} // namespace

std::wstring FormDocument::title() const {
    return path_.empty() ? surface_.name() : path_.filename().wstring();
}

bool FormDocument::may_go() {
    if (!changed_)
        return true;
    switch (questions_.save_changes(title())) {
    case Questions::Answer::yes:
        return save();
    case Questions::Answer::no:
        return true;
    default:
        return false;
    }
}

void FormDocument::start_anew() {
    if (!may_go())
        return;
    surface_.load(empty_form());
    path_.clear();
    changed_ = false;
    shell_.say(L"A new form. Ctrl+I puts a control on it.");
}

void FormDocument::open() {
    if (!may_go())
        return;
    if (const auto path = questions_.file_to_open())
        open(*path);
}

void FormDocument::open(const std::filesystem::path& path) {
    try {
        surface_.load(read_form_file(path));
        path_ = path;
        changed_ = false;
        shell_.say(title() + L" is open." + summary(surface_));
    } catch (const FormError& error) {
        questions_.tell(wide(std::string_view(error.what())));
    }
}

bool FormDocument::save() {
    return path_.empty() ? save_as() : save_to(path_);
}

bool FormDocument::save_as() {
    const auto path = questions_.file_to_save(path_.empty() ? surface_.name() + L".frm" : path_.wstring());
    return path && save_to(*path);
}

bool FormDocument::save_to(const std::filesystem::path& path) {
    try {
        write_form_file(path, surface_.form());
    } catch (const FormError& error) {
        questions_.tell(wide(std::string_view(error.what())));
        return false;
    }
    path_ = path;
    changed_ = false;
    shell_.say(title() + L" is saved.");
    return true;
}

} // namespace vellora::samples
