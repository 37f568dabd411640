#include "form_lines.h"

#include "form_text.h"
#include "form_utf8.h"

#include <algorithm>

namespace vellora::samples {

std::u16string FormLines::next() {
    const std::string_view line = take_line();
    ++number_;
    if (line.size() > FormLimits::line_bytes)
        place().fail("more than the " + std::to_string(FormLimits::line_bytes) + " bytes stand that a line can have");
    if (line.find('\0') != std::string_view::npos)
        place().fail("a zero character stands, where only text was expected");
    std::optional<std::u16string> text = decode_utf8(line);
    if (!text || !has_whole_characters(*text))
        place().fail("characters stand that are not UTF-8, in which a form file was expected to be saved");
    return *std::move(text);
}

std::string_view FormLines::take_line() {
    const std::size_t end = std::min(rest_.find_first_of("\r\n"), rest_.size());
    const std::string_view line = rest_.substr(0, end);
    rest_.remove_prefix(end);
    if (rest_.starts_with("\r\n"))
        rest_.remove_prefix(2);
    else if (!rest_.empty())
        rest_.remove_prefix(1);
    return line;
}

} // namespace vellora::samples
