// Where in a form file something is wrong.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vellora::samples {

struct FormPlace {
    const std::string& file;
    std::size_t line;

    /// Throws a FormError: `wrong` goes on after "In line 7 of Form1.frm" and lacks the full stop.
    [[noreturn]] void fail(const std::string& wrong) const;
    /// Throws a FormError that says what stands there instead.
    [[noreturn]] void expected(const std::string& what, std::u16string_view found) const;
};

/// In quotation marks, and not all of it when it is long.
std::string quoted(std::u16string_view text);

} // namespace vellora::samples
