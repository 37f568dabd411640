// Messages about rows that other programs send to the list's window, answered from the rows: the window
// itself holds none. What would take the rows' place in the window is refused.
#pragma once

#include "widgets/list_rows.h"
#include "widgets/win32/list_window.h"

#include <optional>

namespace vellora::win32 {

/// True for the messages of list views; the window has to know its rows before it can answer one.
bool is_list_message(UINT message);

class ListItemMessages {
public:
    ListItemMessages(const ListWindow& window, ListRows& rows) : window_(window), rows_(rows) {}

    /// Nothing for a message that the window answers itself.
    std::optional<LRESULT> answer(const WindowMessage& message);

private:
    std::optional<LRESULT> answer_read(const WindowMessage& message);
    std::optional<LRESULT> answer_write(const WindowMessage& message);

    template <typename Item>
    LRESULT item_text(std::int32_t row, const Item* item) const;
    template <typename Item>
    LRESULT get_item(Item* item) const;
    template <typename Search>
    LRESULT find_item(std::int32_t start, const Search* search) const;
    template <typename Item>
    LRESULT insert_item(const Item* item);
    template <typename Item>
    LRESULT set_item(const Item* item);
    template <typename Item>
    LRESULT set_item_text(std::int32_t row, const Item* item);
    LRESULT set_item_state(std::int32_t row, const LVITEMW* item);
    LRESULT set_every_state(const LVITEMW& item);
    LRESULT delete_item(std::int32_t row);
    LRESULT delete_all_items();

    void set_row_state(std::int32_t row, UINT state, UINT mask);
    UINT row_state(std::int32_t row, UINT mask) const;
    std::int32_t column_count() const;

    const ListWindow& window_;
    ListRows& rows_;
};

} // namespace vellora::win32
