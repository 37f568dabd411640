// Comparing texts as the host language does it: in the user's locale, without regard to case.
#pragma once

#include <string>
#include <string_view>

namespace vellora {

/// Text comparison of the host. One instance serves the whole process.
class TextCompare {
public:
    virtual ~TextCompare() = default;

    /// A key such that comparing two keys by code unit orders their texts in the user's locale, case
    /// ignored; equal keys mean equal texts.
    virtual std::u16string sort_key(std::u16string_view text) const = 0;
    /// The text with case folded away, of the same length: two texts are equal without regard to case
    /// when their folded forms are equal by code unit, and one begins with the other when its folded form begins
    /// with the folded other. Completing and finding go by this, sorting by `sort_key`.
    ///
    /// Each unit is folded by itself, whatever stands around it; of a surrogate pair at most the second unit
    /// changes. ASCII letters become their small ones.
    virtual std::u16string fold(std::u16string_view text) const = 0;
};

} // namespace vellora
