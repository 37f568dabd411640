// The rows of a list view: texts, tool tips, check flags, tags, selection, order and sort. They live here
// and nowhere else; the platform's list only asks for the texts of the rows it paints.
#pragma once

#include "runtime/text_compare.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>

namespace vellora {

/// Names one row for as long as it exists, wherever sorting and inserting move it.
struct RowRef {
    std::uint32_t slot = 0;
    std::uint32_t generation = 0; // 0: no row
    explicit operator bool() const { return generation != 0; }
    bool operator==(const RowRef&) const = default;
};

enum class SortOrder : std::int32_t { ascending = 0, descending = 1 };
enum class FindWhere : std::int32_t { text = 0, sub_items = 1 };

/// Is told of every change, once it is made. Implemented by the list view that shows the rows.
class RowsObserver {
public:
    virtual void rows_changed() = 0;             // count or order
    virtual void row_changed(std::int32_t row) = 0; // texts or check flag of one row
    virtual void selection_changed() = 0;

protected:
    ~RowsObserver() = default;
};

/// Rows are counted from 0; column 0 is the row's text, column k > 0 its k-th sub-item. A row holds as many
/// sub-items as were added to it. A row, sub-item or position that is not there raises 35600
/// ("Index out of bounds"). Texts may hold any code unit, also zero.
///
/// Appending, reading, removing the last row and looking a row's position up take constant time; inserting and
/// removing elsewhere move one machine word per following row. Sorting n rows makes n keys and takes O(n log n);
/// once they are sorted so and only c have changed since, it makes O(c log n) keys and passes the order once.
///
/// A column of a long list is indexed once it is searched for the second time from end to end, or completed from:
/// then a search takes O(log n), or passes the order once where very many rows match. The index takes four bytes
/// per row, follows all changes, and is given up at `clear`, when most rows change at once, and when memory is
/// short; searches find the same without it.
class ListRows {
public:
    explicit ListRows(const TextCompare& compare);
    ~ListRows();
    ListRows(const ListRows&) = delete;
    ListRows& operator=(const ListRows&) = delete;

    /// At most one observer; null for none.
    void observe(RowsObserver* observer);

    std::int32_t count() const;

    /// New rows have an empty text, no sub-items, no tag and no check. Position 0 to count().
    RowRef append();
    RowRef insert(std::int32_t row);
    void remove(std::int32_t row);
    void clear();

    /// -1 when the row is gone or the reference is empty.
    std::int32_t position(RowRef ref) const;
    RowRef ref(std::int32_t row) const;

    /// Views stay valid until the rows change.
    std::u16string_view text(std::int32_t row, std::int32_t column) const;
    void set_text(std::int32_t row, std::int32_t column, std::u16string_view text);
    std::int32_t sub_item_count(std::int32_t row) const;
    void add_sub_item(std::int32_t row, std::u16string_view text);

    /// The tool tip of a cell; empty where none was set. A cell that does not exist raises 35600 on writing.
    std::u16string_view tool_tip(std::int32_t row, std::int32_t column) const;
    void set_tool_tip(std::int32_t row, std::int32_t column, std::u16string_view tip);

    std::optional<std::int32_t> tag(std::int32_t row) const;
    void set_tag(std::int32_t row, std::int32_t value);

    bool checked(std::int32_t row) const;
    void set_checked(std::int32_t row, bool checked);

    /// The selected row, -1 for none. Selecting -1 clears the selection.
    std::int32_t selected() const;
    void select(std::int32_t row);

    bool sorted() const;
    SortOrder sort_order() const;
    std::int32_t sort_column() const;
    /// Each sorts at once when it changes its setting while sorting is on (switching it on counts).
    /// Orders other than descending sort ascending; a column below 0 raises 380.
    void set_sorted(bool sorted);
    void set_sort_order(std::int32_t order);
    void set_sort_column(std::int32_t column);
    /// Sorts where sorting is on: stable, case ignored, a missing cell counts as empty.
    void refresh();

    /// The first row at or after `start` whose text (or any of whose sub-items) equals, or with `partial`
    /// begins with, the target, case ignored; -1 for none. `start` outside 0 to count() - 1 raises 35600;
    /// on an empty list any start gives -1.
    std::int32_t find(std::u16string_view target, FindWhere where, std::int32_t start, bool partial) const;

    /// The first row at or after `start` whose cell in this column, 0 or above, is the very target, case included;
    /// -1 for none. Only rows that `find` proposes count (of the sub-items for any column but 0), and where one
    /// that it proposes earlier lacks the cell, 35600 is raised. `start` as for `find`.
    std::int32_t find_exact(std::u16string_view target, std::int32_t column, std::int32_t start, bool partial) const;

    /// The first row whose cell begins with the target, case ignored, rows without that cell left out; -1 for none.
    std::int32_t first_beginning_with(std::u16string_view target, std::int32_t column) const;
    /// Makes the column's index now rather than at the first completion, which then is as quick as the rest. Does
    /// nothing for a short list, or where the index is there.
    void prepare_completion(std::int32_t column) const;

    /// Raised with every change of texts or count; lets a caller keep something measured over the rows.
    std::uint64_t revision() const;

    /// Has `callback` run after every so many further revisions, so that what is measured over very many rows can
    /// keep up while they arrive. It must not change the rows nor throw. Null for none.
    void set_interval(std::uint64_t revisions, std::function<void()> callback);

    using TextVisitor = std::function<void(RowRef, std::u16string_view)>;
    /// Calls `visit` with the column's text of every row that was added or got another text after the former
    /// revision `since` (0: of all rows), and with those of some unchanged rows as well. In no particular
    /// order; rows without that cell are left out.
    void visit_texts(std::int32_t column, std::uint64_t since, const TextVisitor& visit) const;

private:
    struct Store;
    std::unique_ptr<Store> store_;
};

} // namespace vellora
