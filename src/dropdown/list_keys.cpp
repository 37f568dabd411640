#include "dropdown/list_keys.h"

#include "columns/column_order.h"
#include "columns/held_column.h"
#include "control/keys.h"
#include "dropdown/list_messages.h"
#include "dropdown/resize_grip.h"
#include "runtime/checked.h"

#include <algorithm>
#include <utility>

namespace vellora {

namespace {

constexpr int no_place = -1;
// How far a column or the list grows by one key, in pixels.
constexpr int width_step = 8;
constexpr std::intptr_t width_of_contents = -1;

int direction_of(std::int16_t key, std::int16_t back, std::int16_t forth) {
    return (key == forth ? 1 : 0) - (key == back ? 1 : 0);
}

} // namespace

void ListKeys::list_key_down(std::int16_t& key_code, std::int16_t shift) {
    // Before anything is done: a handler that lets messages run lets the key's character arrive meanwhile.
    taken_ = true;
    if (core_.state.mlStatic_hWnd != 0 && take(key_code, shift)) {
        key_code = 0;
    } else {
        taken_ = false;
    }
}

void ListKeys::list_key_press(std::int16_t& key_ascii) {
    if (std::exchange(taken_, false)) {
        key_ascii = 0;
    } else {
        leave_headers(); // a row is being found by its text
    }
}

bool ListKeys::take(std::int16_t key, std::int16_t shift) {
    const int across = direction_of(key, key::left, key::right);
    const int down = direction_of(key, key::up, key::down);
    if (shift == (key::shift_mask | key::control_mask) && (across != 0 || down != 0) && core_.state.mbAllowResize) {
        pull_grip(across, down);
    } else if (shift == key::control_mask && key == key::add) {
        fit_columns();
    } else if (shift == 0 && key == key::f6 && !core_.parts.ListView1.hide_column_headers()) {
        leave_or_enter_headers();
    } else {
        return marked() != 0 && take_in_headers(key, shift);
    }
    return true;
}

bool ListKeys::take_in_headers(std::int16_t key, std::int16_t shift) {
    const int across = direction_of(key, key::left, key::right);
    if (shift == 0 && key == key::escape) {
        leave_headers();
    } else if (shift == 0 && (key == key::space || key == key::enter)) {
        core_.events.column_click(to_integer(marked()));
    } else if (across == 0) {
        // What goes to a row is the rows' own, wherever the keyboard was.
        if (key >= key::page_up && key <= key::down) {
            leave_headers();
        }
        return false;
    } else if (shift == 0) {
        go(across);
    } else if (shift == key::shift_mask) {
        widen(across);
    } else if (shift == key::control_mask) {
        move(across);
    }
    return true;
}

void ListKeys::leave_headers() {
    if (marked() != 0) {
        core_.parts.ListView1.mark_header(0);
    }
}

void ListKeys::leave_or_enter_headers() {
    const Order order = order_.places();
    const int first = marked() != 0 ? no_place : shown_beside(order, no_place, 1);
    core_.parts.ListView1.mark_header(first == no_place ? 0 : order[static_cast<std::size_t>(first)] + 1);
}

void ListKeys::go(int direction) {
    const Order order = order_.places();
    const int place = shown_beside(order, place_of_marked(order), direction);
    if (place != no_place) {
        core_.parts.ListView1.mark_header(order[static_cast<std::size_t>(place)] + 1);
    }
}

// As its divider would, but that says by the place of the mouse which column is meant.
void ListKeys::widen(int direction) {
    ListView& list = core_.parts.ListView1;
    const std::int32_t column = marked();
    if (!is_column_held(core_.state, column)) {
        const auto step = static_cast<float>(direction * width_step * core_.state.miTwipsPerPixelX);
        list.set_header_width(column, std::max(0.0F, list.header_width(column) + step));
        list.mark_header(column);
    }
}

// The program hears of it before it happens, as when a header is dragged, and may have changed everything.
void ListKeys::move(int direction) {
    const auto target = [&](const Order& order) { return shown_beside(order, place_of_marked(order), direction); };
    if (!core_.state.mbAllowColumnReorder || target(order_.places()) == no_place || !messages_.column_dragged() ||
        marked() == 0) {
        return;
    }
    Order order = order_.places();
    const int to = target(order);
    if (to != no_place) {
        const auto from = order.begin() + place_of_marked(order);
        const auto there = order.begin() + to;
        std::rotate(std::min(from, there), direction > 0 ? from + 1 : from, std::max(from, there) + 1);
        order_.put_places(std::move(order));
        core_.parts.ListView1.mark_header(marked());
    }
}

// What a double click on a divider does, for every divider that can be pulled.
void ListKeys::fit_columns() {
    ListView& list = core_.parts.ListView1;
    for (std::int32_t column = 1; column <= list.header_count(); ++column) {
        if (!is_column_held(core_.state, column)) {
            core_.user32.send_message(list.window(), message::list_set_column_width,
                                      static_cast<std::uintptr_t>(column - 1), width_of_contents);
        }
    }
    if (marked() != 0) {
        list.mark_header(marked());
    }
}

void ListKeys::pull_grip(int across, int down) {
    const auto row = to_long(static_cast<double>(core_.parts.ListView1.row_height()));
    grip_.pull(across * width_step, down * checked_divide(row, core_.state.miTwipsPerPixelY));
}

std::int32_t ListKeys::marked() const {
    const ListView& list = core_.parts.ListView1;
    return list.hide_column_headers() ? 0 : list.marked_header();
}

bool ListKeys::is_hidden(std::int32_t column) const {
    return core_.state.mabColumnHidden[checked_slot(column, maximum_columns)];
}

int ListKeys::place_of_marked(const Order& order) const {
    return static_cast<int>(std::ranges::find(order, marked() - 1) - order.begin());
}

int ListKeys::shown_beside(const Order& order, int place, int direction) const {
    const int count = static_cast<int>(order.size());
    do {
        place += direction;
    } while (place >= 0 && place < count && is_hidden(order[static_cast<std::size_t>(place)] + 1));
    return place >= 0 && place < count ? place : no_place;
}

} // namespace vellora
