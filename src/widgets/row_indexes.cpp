#include "widgets/row_indexes.h"

#include <algorithm>
#include <new>

namespace vellora {

namespace {

// Fewer rows are passed one by one in less time than an index takes.
constexpr std::size_t least_rows = 256;

/// Each search passes the changed rows one by one, and taking them in passes the whole index.
std::size_t many_changes(std::size_t rows) {
    return 256 + rows / 1024;
}

/// Making an index anew costs no more than taking in as many.
std::size_t too_many_changes(std::size_t rows) {
    return std::max<std::size_t>(1024, rows / 8);
}

} // namespace

void RowIndexes::note(std::uint32_t slot) noexcept {
    if (!changes_.noting())
        return;
    changes_.note(slot, too_many_changes(rows_.order().size()));
    if (!changes_.noting())
        clear();
}

void RowIndexes::clear() noexcept {
    std::vector<Column>().swap(columns_);
    changes_.stop();
    scratch_.clear();
}

void RowIndexes::begin_search() noexcept {
    may_make_ = rows_.order().size() >= least_rows;
    if (changes_.slots().size() > many_changes(rows_.order().size()))
        take_changes_in();
}

void RowIndexes::take_changes_in() noexcept {
    try {
        for (const Column& column : columns_)
            if (column.index)
                column.index->take_in(rows_, changes_, compare_);
        changes_.start();
    } catch (const std::bad_alloc&) {
        clear();
    }
}

const TextIndex* RowIndexes::find(std::uint32_t column, bool at_once) noexcept {
    const bool known = column < columns_.size();
    if (known && columns_[column].index)
        return columns_[column].index.get();
    const bool worth_it = at_once || (known && columns_[column].passed >= rows_.order().size());
    if (!may_make_ || !worth_it || column >= most_columns)
        return nullptr;
    make(column);
    return column < columns_.size() ? columns_[column].index.get() : nullptr;
}

void RowIndexes::make(std::uint32_t column) noexcept {
    may_make_ = false;
    try {
        if (columns_.size() <= column)
            columns_.resize(column + 1);
        columns_[column].passed = 0;
        columns_[column].index = std::make_unique<TextIndex>(rows_, column, compare_);
        if (!changes_.noting())
            changes_.start();
    } catch (const std::bad_alloc&) {
        return; // it is tried again after as many more rows
    }
}

void RowIndexes::passed(std::uint32_t column, std::size_t rows) noexcept {
    try {
        if (column >= most_columns)
            return;
        if (columns_.size() <= column)
            columns_.resize(column + 1);
        columns_[column].passed += std::min(rows, rows_.order().size());
    } catch (const std::bad_alloc&) {
        return; // no index then, for now
    }
}

} // namespace vellora
