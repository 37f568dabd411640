#include "form_name.h"

#include "form_utf8.h"

#include <algorithm>

namespace vellora::samples {

namespace {

constexpr char16_t folded(char16_t unit) {
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit - u'A' + u'a') : unit;
}

} // namespace

std::u16string folded(std::u16string_view name) {
    std::u16string result(name);
    std::ranges::transform(result, result.begin(), [](char16_t unit) { return folded(unit); });
    return result;
}

bool same_name(std::u16string_view a, std::u16string_view b) {
    return std::ranges::equal(a, b, [](char16_t one, char16_t other) { return folded(one) == folded(other); });
}

bool is_word(std::u16string_view name) {
    return !name.empty() && std::ranges::none_of(name, ends_word) && has_whole_characters(name);
}

} // namespace vellora::samples
