// The form as a file: new, opened, saved, and never lost without being asked about.
#pragma once

#include "form_surface.h"
#include "questions.h"

#include <filesystem>
#include <string>

namespace vellora::samples {

class FormDocument {
public:
    FormDocument(FormSurface& surface, Questions& questions, Shell& shell)
        : surface_(surface), questions_(questions), shell_(shell) {}

    void start_anew();
    void open();
    /// Shows the form of the file; when it cannot be read, says why, and the form so far stays.
    void open(const std::filesystem::path& path);
    /// Whether the form is in its file now.
    bool save();
    bool save_as();
    /// Whether the form may go: it is saved, or nobody wants it.
    bool may_go();

    void touch() noexcept { changed_ = true; }
    bool changed() const noexcept { return changed_; }
    /// The file's name, or the form's while it has no file.
    std::wstring title() const;

private:
    bool save_to(const std::filesystem::path& path);

    FormSurface& surface_;
    Questions& questions_;
    Shell& shell_;
    std::filesystem::path path_;
    bool changed_ = false;
};

} // namespace vellora::samples
