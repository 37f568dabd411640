// Form files in memory, to be read, written and damaged.
#pragma once

#include "container/form_text.h"

#include <map>
#include <string>
#include <vector>

namespace vellora::test {

/// A form and what lies beside it in its folder.
struct FormFolder {
    std::string text;
    std::map<std::u16string, samples::FormBlob> files = {};

    samples::Form read() const;
    /// What is wrong with the form; empty when it can be read.
    std::string error() const;
};

/// The form as it is written, and its companion file Form1.frx.
FormFolder written(const samples::Form& form);

samples::FormBlob bytes(std::string_view text);

/// With CR and LF at the end of each.
std::string lines(const std::vector<std::string>& all);
/// Without them.
std::vector<std::string> split_lines(const std::string& text);

/// A form as this program writes it: every kind of value, of text and of object, and a companion file.
FormFolder complete_form();
/// A form of another program: libraries, containers, menus, keys, arrays of controls, and code.
FormFolder foreign_form();

} // namespace vellora::test
