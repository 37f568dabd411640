// A line of a form, read piece by piece from its start.
#pragma once

#include "form_place.h"

#include <string>
#include <string_view>

namespace vellora::samples {

class FormScanner {
public:
    FormScanner(std::u16string_view text, const FormPlace& place) : rest_(text), place_(place) { skip_blanks(); }

    const FormPlace& place() const noexcept { return place_; }
    std::u16string_view rest() const noexcept { return rest_; }
    bool at_end() const noexcept { return rest_.empty(); }
    bool is_at(char16_t unit) const noexcept { return !rest_.empty() && rest_.front() == unit; }

    /// What follows next in the line, blanks aside, is `unit`: goes past it.
    bool takes(char16_t unit);
    /// Up to the next blank or mark; empty when there is none.
    std::u16string_view word();
    /// Up to the next blank or comment.
    std::u16string_view bare_value();
    /// What stands between quotation marks, the first of which is next. Fails without the last.
    std::u16string quoted_text();
    /// Everything up to the end, without blanks there.
    std::u16string_view remainder();
    /// What follows the apostrophe of a comment, empty at the end. Fails when there is anything else.
    std::u16string comment();

private:
    std::u16string_view take(std::size_t length);
    void skip_blanks();

    std::u16string_view rest_;
    FormPlace place_;
};

} // namespace vellora::samples
