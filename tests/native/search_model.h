// The plainest way to search and sort rows, to compare the real one with; folded texts are kept, so that it
// is quick enough for lists that are long enough to be indexed.
#pragma once

#include "runtime/plain_text_compare.h"
#include "widgets/list_rows.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vellora::test {

class SearchModel {
public:
    static constexpr std::int32_t refused = -2; // stands for error 35600

    std::int32_t count() const { return static_cast<std::int32_t>(rows_.size()); }
    std::int32_t cells(std::int32_t row) const { return static_cast<std::int32_t>(at(row).texts.size()); }
    RowRef ref(std::int32_t row) const { return at(row).ref; }

    void insert(std::int32_t row, RowRef ref);
    void remove(std::int32_t row) { rows_.erase(rows_.begin() + row); }
    void clear() { rows_.clear(); }
    void write(std::int32_t row, std::int32_t column, std::u16string_view text);
    void add_cell(std::int32_t row, std::u16string_view text);
    void sort(std::int32_t column, bool descending);

    std::int32_t find(std::u16string_view target, FindWhere where, std::int32_t start, bool partial) const;
    std::int32_t find_exact(std::u16string_view target, std::int32_t column, std::int32_t start,
                            bool partial) const;
    std::int32_t first_beginning_with(std::u16string_view target, std::int32_t column) const;

private:
    struct Row {
        RowRef ref;
        std::vector<std::u16string> texts{1};
        std::vector<std::u16string> folded{1};
    };
    const Row& at(std::int32_t row) const { return rows_[static_cast<std::size_t>(row)]; }
    Row& at(std::int32_t row) { return rows_[static_cast<std::size_t>(row)]; }

    PlainTextCompare compare_;
    std::vector<Row> rows_;
};

} // namespace vellora::test
