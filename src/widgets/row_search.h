// Finding a row by its text, case ignored.
#pragma once

#include "runtime/text_compare.h"
#include "widgets/list_rows.h"
#include "widgets/row_store.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace vellora {

/// Whether a text equals the target or, with `partial`, begins with it. Most texts are refused by their
/// length or by a plain letter; only the rest is folded.
class TextMatcher {
public:
    TextMatcher(std::u16string_view target, bool partial, const TextCompare& compare);

    bool matches(std::u16string_view text) const;

private:
    const TextCompare& compare_;
    std::u16string folded_;
    bool partial_;
};

/// The first row from `start` on whose text, or any of whose sub-items, matches; -1 for none.
std::int32_t find_row(const RowStore& rows, const TextMatcher& matcher, FindWhere where, std::int32_t start);
/// The first row whose cell in this column matches; -1 for none.
std::int32_t find_in_column(const RowStore& rows, const TextMatcher& matcher, std::uint32_t column);

} // namespace vellora
