#include "form_place.h"

#include "form_text.h"
#include "form_utf8.h"

namespace vellora::samples {

void FormPlace::fail(const std::string& wrong) const {
    throw FormError("In line " + std::to_string(line) + " of " + file + ' ' + wrong + '.');
}

void FormPlace::expected(const std::string& what, std::u16string_view found) const {
    fail(what + " was expected" + (found.empty() ? " at the end" : ", not " + quoted(found)));
}

std::string quoted(std::u16string_view text) {
    constexpr std::size_t longest = 40;
    const std::string shown = encode_utf8(text.substr(0, longest));
    return '"' + shown + (text.size() > longest ? "..." : "") + '"';
}

} // namespace vellora::samples
