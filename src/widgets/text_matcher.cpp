#include "widgets/text_matcher.h"

#include <algorithm>

namespace vellora {

namespace {

bool is_ascii(char16_t unit) {
    return unit < 0x80;
}

char16_t small_ascii(char16_t unit) {
    return unit >= u'A' && unit <= u'Z' ? unit | 0x20 : unit;
}

} // namespace

int compare_folded(std::u16string_view text, std::u16string_view folded, const TextCompare& compare) {
    const std::size_t shared = std::min(text.size(), folded.size());
    std::size_t i = 0;
    while (i < shared && is_ascii(text[i]) && small_ascii(text[i]) == folded[i])
        ++i;
    if (i < shared && is_ascii(text[i]))
        return small_ascii(text[i]) < folded[i] ? -1 : 1;
    if (i < shared) {
        const std::u16string rest = compare.fold(text.substr(i, shared - i));
        if (const int order = folded.substr(i, shared - i).compare(rest))
            return -order;
    }
    return text.size() == folded.size() ? 0 : text.size() < folded.size() ? -1 : 1;
}

TextMatcher::TextMatcher(std::u16string_view target, bool partial, const TextCompare& compare)
    : compare_(compare), folded_(compare.fold(target)), partial_(partial) {}

bool TextMatcher::matches(std::u16string_view text) const {
    const bool fits = partial_ ? text.size() >= folded_.size() : text.size() == folded_.size();
    return fits && order(text) == 0;
}

int TextMatcher::order(std::u16string_view text) const {
    return compare_folded(partial_ ? text.substr(0, folded_.size()) : text, folded_, compare_);
}

} // namespace vellora
