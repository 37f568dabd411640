// Form files in a folder of their own, and what a control saves into a form.
#pragma once

#include "com/support/host_test.h"
#include "com/support/library_copy.h"
#include "container/form_file.h"

namespace vellora::test {

class FormFolder {
public:
    std::filesystem::path path(const wchar_t* name) const { return std::filesystem::path(folder_.path()) / name; }
    std::filesystem::path form() const { return path(L"Form1.frm"); }
    std::filesystem::path companion() const { return path(L"Form1.frx"); }

    /// The names of all files, sorted.
    Lines names() const;
    static std::string content(const std::filesystem::path& file);
    static void fill(const std::filesystem::path& file, const std::string& content);

private:
    TemporaryFolder folder_{L"VelloraForms"};
};

/// What is wrong with reading or writing; empty when nothing is.
template <class Step>
std::string form_error(const Step& step) {
    try {
        step();
    } catch (const samples::FormError& error) {
        return error.what();
    }
    return {};
}

/// A form with one control of these settings.
samples::Form form_of(samples::FormObject settings);

} // namespace vellora::test
