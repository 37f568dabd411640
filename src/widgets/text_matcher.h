// Comparing texts with a target whose case is folded away already.
#pragma once

#include "runtime/text_compare.h"

#include <string>
#include <string_view>

namespace vellora {

/// Below 0, 0 or above 0 as the folded text stands before, at or behind the folded one, by code unit. Folds
/// no more of the text than it has to: plain letters are compared as they stand.
int compare_folded(std::u16string_view text, std::u16string_view folded, const TextCompare& compare);

/// Whether a text equals the target or, with `partial`, begins with it, case ignored.
class TextMatcher {
public:
    TextMatcher(std::u16string_view target, bool partial, const TextCompare& compare);

    bool matches(std::u16string_view text) const;
    /// Below 0 or above 0 for a text that stands before or behind all that match, in the order of folded
    /// texts.
    int order(std::u16string_view text) const;

private:
    const TextCompare& compare_;
    std::u16string folded_;
    bool partial_;
};

} // namespace vellora
