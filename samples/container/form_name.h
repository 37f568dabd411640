// The names in a form: of settings, controls and classes. Capital letters make no difference.
#pragma once

#include <string>
#include <string_view>

namespace vellora::samples {

/// The name by which equal names are equal texts.
std::u16string folded(std::u16string_view name);

bool same_name(std::u16string_view a, std::u16string_view b);

/// Whether a name can stand in a line of a form: it is not empty and ends nowhere within itself.
bool is_word(std::u16string_view name);

constexpr bool is_blank(char16_t unit) {
    return unit == u' ' || unit == u'\t';
}
constexpr bool ends_word(char16_t unit) {
    return unit <= u' ' || unit == u'=' || unit == u'"' || unit == u'\'';
}

} // namespace vellora::samples
