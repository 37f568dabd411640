#include "widgets/row_search.h"

namespace vellora {

namespace {

bool is_ascii(char16_t unit) {
    return unit < 0x80;
}

char16_t small_ascii(char16_t unit) {
    return unit >= u'A' && unit <= u'Z' ? unit | 0x20 : unit;
}

/// True where both texts hold plain characters that no locale's case folding makes equal.
bool differ_plainly(std::u16string_view a, std::u16string_view b) {
    for (std::size_t i = 0; i < a.size(); ++i)
        if (is_ascii(a[i]) && is_ascii(b[i]) && small_ascii(a[i]) != small_ascii(b[i]))
            return true;
    return false;
}

bool row_matches(const PackedTexts& texts, const TextMatcher& matcher, FindWhere where) {
    if (where == FindWhere::text)
        return matcher.matches(texts.at(0));
    for (std::uint32_t cell = 1; cell < texts.count(); ++cell)
        if (matcher.matches(texts.at(cell)))
            return true;
    return false;
}

} // namespace

TextMatcher::TextMatcher(std::u16string_view target, bool partial, const TextCompare& compare)
    : compare_(compare), folded_(compare.fold(target)), partial_(partial) {}

bool TextMatcher::matches(std::u16string_view text) const {
    if (partial_ ? text.size() < folded_.size() : text.size() != folded_.size())
        return false;
    const std::u16string_view head = text.substr(0, folded_.size());
    return !differ_plainly(head, folded_) && compare_.fold(head) == folded_;
}

std::int32_t find_row(const RowStore& rows, const TextMatcher& matcher, FindWhere where, std::int32_t start) {
    for (std::int32_t row = start; row < rows.count(); ++row)
        if (row_matches(rows.record(row).texts, matcher, where))
            return row;
    return -1;
}

std::int32_t find_in_column(const RowStore& rows, const TextMatcher& matcher, std::uint32_t column) {
    for (std::int32_t row = 0; row < rows.count(); ++row) {
        const PackedTexts& texts = rows.record(row).texts;
        if (column < texts.count() && matcher.matches(texts.at(column)))
            return row;
    }
    return -1;
}

} // namespace vellora
