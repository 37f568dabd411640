// How wide the widest text of each column is, kept up to date at the cost of what changed. Texts are first
// estimated by the widths of their characters; only the widest of them are measured.
#pragma once

#include "widgets/character_widths.h"
#include "widgets/list_rows.h"
#include "widgets/text_measurer.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace vellora {

class ColumnMeasure {
public:
    explicit ColumnMeasure(const ListRows& rows) : rows_(rows) {}

    /// Pixels of the widest text in a column counted from 0; 0 when no row has one. A text ends at its first
    /// zero unit, as in the list, and counts as at most as wide as a window can be.
    std::int32_t widest(std::int32_t column, const TextMeasurer& measurer);
    /// Another font: what was measured no longer holds.
    void invalidate();

private:
    struct Column {
        std::uint64_t revision = 0; // of the rows when last measured
        std::int32_t width = 0;
        RowRef row; // one that is as wide
    };
    std::int32_t exact_width(std::u16string_view text, const TextMeasurer& measurer);
    bool still_holds(const Column& known, std::int32_t column, const TextMeasurer& measurer);
    void measure(Column& known, std::int32_t column, const TextMeasurer& measurer);

    const ListRows& rows_;
    CharacterWidths characters_;
    std::vector<Column> columns_;
};

} // namespace vellora
