// Keys of the open list for what otherwise takes a mouse: clicking, sizing and moving headers, and pulling the grip.
#pragma once

#include "control/core.h"

#include <vector>

namespace vellora {

class ColumnOrder;
class ListMessages;
class ResizeGrip;

/// F6 takes the keyboard from the rows to the headers and back, Esc only back. The focus stays with the list.
class ListKeys {
public:
    ListKeys(ControlCore& core, ColumnOrder& order, ListMessages& messages, ResizeGrip& grip)
        : core_(core), order_(order), messages_(messages), grip_(grip) {}

    /// A key that is taken becomes 0, and so does the character that it leaves behind.
    void list_key_down(std::int16_t& key_code, std::int16_t shift);
    void list_key_press(std::int16_t& key_ascii);

private:
    /// Columns from 0, as they stand on the screen.
    using Order = std::vector<std::int32_t>;

    bool take(std::int16_t key, std::int16_t shift);
    bool take_in_headers(std::int16_t key, std::int16_t shift);
    void leave_headers();
    void leave_or_enter_headers();
    void go(int direction);
    void widen(int direction);
    void move(int direction);
    void fit_columns();
    void pull_grip(int across, int down);

    std::int32_t marked() const;
    bool is_hidden(std::int32_t column) const;
    int place_of_marked(const Order& order) const;
    int shown_beside(const Order& order, int place, int direction) const;

    ControlCore& core_;
    ColumnOrder& order_;
    ListMessages& messages_;
    ResizeGrip& grip_;
    bool taken_ = false;
};

} // namespace vellora
