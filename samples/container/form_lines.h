// The bytes of a form file as lines, with their numbers.
#pragma once

#include "form_place.h"

#include <string>
#include <string_view>

namespace vellora::samples {

class FormLines {
public:
    FormLines(const std::string& file, std::string_view text) : file_(file), rest_(text) {}

    /// The line read last; 0 before the first.
    FormPlace place() const noexcept { return {file_, number_}; }
    /// What has not been read.
    std::string_view rest() const noexcept { return rest_; }
    bool at_end() const noexcept { return rest_.empty(); }

    /// Not at the end. Fails for a line that is no text, or too long.
    std::u16string next();

private:
    std::string_view take_line();

    const std::string& file_;
    std::string_view rest_;
    std::size_t number_ = 0;
};

} // namespace vellora::samples
