#include "form_scanner.h"

#include "form_name.h"

#include <algorithm>

namespace vellora::samples {

bool FormScanner::takes(char16_t unit) {
    if (!is_at(unit))
        return false;
    rest_.remove_prefix(1);
    skip_blanks();
    return true;
}

std::u16string_view FormScanner::word() {
    const auto end = std::ranges::find_if(rest_, ends_word);
    const std::u16string_view found = take(static_cast<std::size_t>(end - rest_.begin()));
    skip_blanks();
    return found;
}

std::u16string_view FormScanner::bare_value() {
    const auto end = std::ranges::find_if(rest_, [](char16_t unit) { return is_blank(unit) || unit == u'\''; });
    return take(static_cast<std::size_t>(end - rest_.begin()));
}

std::u16string FormScanner::quoted_text() {
    std::u16string text;
    do {
        rest_.remove_prefix(1);
        const std::size_t end = rest_.find(u'"');
        if (end == std::u16string_view::npos)
            place_.expected("a closing quotation mark", {});
        text += take(end);
        rest_.remove_prefix(1);
        // A doubled mark stands for itself.
        if (is_at(u'"'))
            text += u'"';
    } while (is_at(u'"'));
    return text;
}

std::u16string_view FormScanner::remainder() {
    const std::size_t end = rest_.find_last_not_of(u" \t");
    const std::u16string_view found = rest_.substr(0, end == std::u16string_view::npos ? 0 : end + 1);
    rest_ = {};
    return found;
}

std::u16string FormScanner::comment() {
    skip_blanks();
    if (at_end())
        return {};
    if (!is_at(u'\''))
        place_.expected("the end of the line", remainder());
    rest_.remove_prefix(1);
    return std::u16string(remainder());
}

std::u16string_view FormScanner::take(std::size_t length) {
    const std::u16string_view found = rest_.substr(0, length);
    rest_.remove_prefix(length);
    return found;
}

void FormScanner::skip_blanks() {
    rest_.remove_prefix(std::min(rest_.find_first_not_of(u" \t"), rest_.size()));
}

} // namespace vellora::samples
