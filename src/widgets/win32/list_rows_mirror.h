// Keeps the window of a list in step with its rows. A change of the rows only leaves a mark; the window learns
// of it once it is shown, painted, asked something or used, so that filling a list costs the rows alone.
#pragma once

#include "widgets/list_rows.h"
#include "widgets/win32/list_window.h"

namespace vellora::win32 {

class ListRowsMirror final : public RowsObserver {
public:
    ListRowsMirror(ListWindow& window, ListRows& rows);
    ~ListRowsMirror();
    ListRowsMirror(const ListRowsMirror&) = delete;
    ListRowsMirror& operator=(const ListRowsMirror&) = delete;

    /// Brings the window up to date, and sorts before that where the list is visible: what the user sees is
    /// in order.
    void flush();
    /// The same for a list that is about to be shown.
    void flush_sorted();
    /// Shows exactly the scroll bars that rows, columns and size ask for, also in the window's style bits.
    void settle_scroll_bars();
    /// The window's selection changed: the rows take it over, unless it is the mirror that changed it.
    void adopt_selection();
    /// The row on which the keyboard acts, -1 for none.
    std::int32_t focused_row() const;

    void rows_changed() override;
    void row_changed(std::int32_t row) override;
    void selection_changed() override;

private:
    enum Change : unsigned { content = 1, selection = 2, order = 4 };

    void mark(unsigned changes);
    bool has_changes() const { return (changes_ & (content | selection)) != 0; }
    void sort();
    void mirror();
    void mirror_count();
    void mirror_selection();
    void set_state(std::int32_t row, UINT state, UINT mask);
    std::int32_t next_row(UINT flags) const;

    ListWindow& window_;
    ListRows& rows_;
    unsigned changes_ = 0;
    bool mirroring_ = false;
    bool adopting_ = false;
};

} // namespace vellora::win32
