// Keeps the window of a list in step with its rows. A change of the rows only leaves a mark; the window
// learns of it once it is shown, painted, asked something or used, so that filling a list costs the rows
// alone.
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
    /// Has the window scroll to the row when it is next brought up to date, if the row is still there then.
    void bring_into_view(RowRef row);
    /// Shows exactly the scroll bars that rows, columns and size ask for, also in the window's style bits.
    void settle_scroll_bars();
    /// Takes the window's word on which rows are selected and focused; asking it would cost time linear in
    /// the rows. A selection that the user made goes on to the rows. False for another notification.
    bool note(const NMHDR& header);
    /// The row on which the keyboard acts, -1 for none.
    std::int32_t focused_row() const { return focused_; }
    /// Tells assistive software that the keyboard is with the rows again.
    void announce_focus() const;

    void rows_changed() override;
    void row_changed(std::int32_t row) override;
    void selection_changed() override;

private:
    enum Change : unsigned { content = 1, selection = 2, view = 4, order = 8 };

    void mark(unsigned changes);
    bool has_changes() const { return (changes_ & (content | selection | view)) != 0; }
    void sort();
    void mirror();
    void mirror_count();
    void mirror_selection();
    void mirror_view();
    void set_state(std::int32_t row, UINT state, UINT mask);
    void note_state(std::int32_t first, std::int32_t last, UINT old_state, UINT new_state);
    void adopt_selection();

    ListWindow& window_;
    ListRows& rows_;
    std::int32_t selected_ = -1; // both of the window
    std::int32_t focused_ = -1;
    RowRef wanted_in_view_;
    unsigned changes_ = 0;
    bool mirroring_ = false;
    bool adopting_ = false;
};

} // namespace vellora::win32
