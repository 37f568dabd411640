#include "widgets/row_search.h"

#include <algorithm>
#include <new>
#include <utility>

namespace vellora {

namespace {

// Matches that follow one another closely are found sooner without an index.
constexpr std::int32_t first_glance = 32;
// The positions of so few rows are looked up one by one.
constexpr std::size_t few = 256;

/// A bit for each column that may have an index; those beyond are always open.
constexpr std::uint64_t all_columns = ~std::uint64_t{0};
static_assert(RowIndexes::most_columns == 64);

bool is_open(std::uint64_t open, std::uint32_t column) {
    return column >= RowIndexes::most_columns || (open >> column & 1U) != 0;
}

bool any_open(std::uint64_t open, ColumnRange columns) {
    for (std::uint32_t column = columns.first; column < columns.last; ++column)
        if (is_open(open, column))
            return true;
    return false;
}

} // namespace

/// What is looked for, and among which rows.
struct RowSearch::Quest {
    enum class Of { any_row, rows_with_text, rows_without_cell };

    const TextMatcher& matcher;
    ColumnRange columns;
    std::int32_t start;
    std::int32_t end;
    Of of = Of::any_row;
    std::u16string_view text = {};
    std::uint32_t cell = 0;

    bool accepts(const RowRecord& row) const {
        if (of == Of::any_row)
            return true;
        const bool has_cell = cell < row.texts.count();
        return of == Of::rows_without_cell ? !has_cell : has_cell && row.texts.at(cell) == text;
    }
    bool met_by(const RowRecord& row, std::uint64_t open) const {
        const std::uint32_t last = std::min(columns.last, row.texts.count());
        for (std::uint32_t column = columns.first; column < last; ++column)
            if (is_open(open, column) && matcher.matches(row.texts.at(column)))
                return accepts(row);
        return false;
    }
    bool contains(std::int32_t row) const { return row >= start && row < end; }
};

RowSearch::RowSearch(const RowStore& rows, RowIndexes& indexes, bool at_once)
    : rows_(rows), indexes_(indexes), at_once_(at_once) {
    indexes.begin_search();
}

std::int32_t RowSearch::first(const TextMatcher& matcher, ColumnRange columns, std::int32_t start) {
    const std::int32_t row = run({matcher, columns, start, rows_.count()});
    return row < rows_.count() ? row : -1;
}

std::int32_t RowSearch::first_exact(std::u16string_view text, const TextMatcher& matcher,
                                    std::uint32_t column, std::int32_t start) {
    const std::int32_t row =
        run({matcher, {column, column + 1}, start, rows_.count(), Quest::Of::rows_with_text, text, column});
    return row < rows_.count() ? row : -1;
}

bool RowSearch::any_without(std::uint32_t column, const TextMatcher& matcher, std::int32_t start,
                            std::int32_t end) {
    if (all_have(column))
        return false;
    return run({matcher, {1, column}, start, end, Quest::Of::rows_without_cell, {}, column}) < end;
}

bool RowSearch::all_have(std::uint32_t column) noexcept {
    const TextIndex* index = indexes_.find(column, at_once_);
    const auto& changed = indexes_.changes().slots();
    return index && index->complete() && std::all_of(changed.begin(), changed.end(), [&](std::uint32_t slot) {
               return !rows_.table().in_use(slot) || column < rows_.table().at(slot).texts.count();
           });
}

std::int32_t RowSearch::run(Quest quest) {
    quest.columns.last = std::min(quest.columns.last, rows_.most_cells());
    if (quest.columns.first >= quest.columns.last)
        return quest.end;
    const std::int32_t end = quest.end;
    quest.end = quest.start + std::min(first_glance, end - quest.start);
    if (const std::int32_t row = pass(quest, all_columns); row < quest.end)
        return row;
    quest.start = std::exchange(quest.end, end);
    std::uint64_t open = all_columns;
    quest.end = pass_by_indexes(quest, open);
    if (!any_open(open, quest.columns))
        return quest.end;
    const std::int32_t row = pass(quest, open);
    count_passed(quest, open, row);
    return row;
}

std::int32_t RowSearch::pass(const Quest& quest, std::uint64_t open) const {
    for (std::int32_t row = quest.start; row < quest.end; ++row)
        if (quest.met_by(rows_.record(row), open))
            return row;
    return quest.end;
}

void RowSearch::count_passed(const Quest& quest, std::uint64_t open, std::int32_t end) noexcept {
    const std::uint32_t last = std::min(quest.columns.last, RowIndexes::most_columns);
    for (std::uint32_t column = quest.columns.first; column < last; ++column)
        if (is_open(open, column))
            indexes_.passed(column, static_cast<std::size_t>(end - quest.start));
}

/// Leaves those columns open that have no index.
std::int32_t RowSearch::pass_by_indexes(const Quest& wanted, std::uint64_t& open) {
    Quest quest = wanted;
    try {
        const std::uint32_t last = std::min(quest.columns.last, RowIndexes::most_columns);
        for (std::uint32_t column = quest.columns.first; column < last; ++column)
            if (const TextIndex* index = indexes_.find(column, at_once_)) {
                open &= ~(std::uint64_t{1} << column);
                quest.end = first_of(index->range(rows_, indexes_.changes(), quest.matcher), quest);
            }
        return open == all_columns ? quest.end : first_changed(quest);
    } catch (const std::bad_alloc&) {
        indexes_.clear();
        open = all_columns;
        return wanted.end;
    }
}

std::int32_t RowSearch::first_changed(Quest quest) const {
    for (const std::uint32_t slot : indexes_.changes().slots())
        if (rows_.table().in_use(slot) && quest.met_by(rows_.table().at(slot), all_columns))
            if (const std::int32_t row = rows_.position(slot); quest.contains(row))
                quest.end = row;
    return quest.end;
}

std::int32_t RowSearch::first_of(std::span<const std::uint32_t> slots, const Quest& quest) {
    return slots.size() <= few ? first_of_few(slots, quest) : first_of_many(slots, quest);
}

std::int32_t RowSearch::first_of_few(std::span<const std::uint32_t> slots, Quest quest) const {
    for (const std::uint32_t slot : slots)
        if (!indexes_.changes().has(slot) && quest.accepts(rows_.table().at(slot)))
            if (const std::int32_t row = rows_.position(slot); quest.contains(row))
                quest.end = row;
    return quest.end;
}

/// Looks a little further first: where many rows match, the next one is seldom far.
std::int32_t RowSearch::first_of_many(std::span<const std::uint32_t> slots, Quest quest) {
    const auto gap = static_cast<std::int32_t>(4 * rows_.order().size() / slots.size());
    const std::int32_t end = quest.end;
    quest.end = quest.start + std::min(gap, end - quest.start);
    if (const std::int32_t row = pass(quest, all_columns); row < quest.end)
        return row;
    SlotSet& matching = indexes_.scratch();
    for (const std::uint32_t slot : slots)
        if (!indexes_.changes().has(slot))
            matching.add(slot);
    std::int32_t row = quest.end;
    while (row < end && !(matching.has(rows_.slot(row)) && quest.accepts(rows_.record(row))))
        ++row;
    matching.remove_all();
    return row;
}

} // namespace vellora
