#include "items/selection.h"

#include "control/control_object.h"
#include "control/keys.h"
#include "dropdown/drop_down.h"
#include "runtime/checked.h"
#include "runtime/host_error.h"

#include <algorithm>

namespace vellora {

namespace {

constexpr std::int32_t no_row = -1;
// How far above the end of the drop-down the selected row is kept, in rows.
constexpr float rows_kept_below = 3;

} // namespace

Selection::Selection(ControlCore& core, ControlObject& object, DropDown& drop_down)
    : core_(core), object_(object), drop_down_(drop_down) {}

std::int32_t Selection::ListIndex() {
    core_.state.mlListIndex = core_.parts.ListView1.rows().selected();
    return core_.state.mlListIndex;
}

void Selection::put_ListIndex(std::int32_t index) {
    ControlState& state = core_.state;
    ListRows& rows = core_.parts.ListView1.rows();
    if (!core_.site.user_mode() && !state.mbLoadingProperties) {
        throw HostError(error_number::set_not_permitted);
    }
    if (index >= rows.count() || index < no_row) {
        throw HostError(error_number::invalid_property_array_index);
    }
    if (index == state.mlListIndex) {
        return;
    }
    state.mlListIndex = index;
    core_.property_changed(u"ListIndex");
    std::u16string text;
    rows.select(index);
    if (index != no_row) {
        text = text_of(index);
        scroll_to(index);
    }
    {
        const RaisedFlag ignore(state.mbIgnoreChange);
        core_.live_text_box().set_text(text);
    }
    subSelectListItem();
}

void Selection::subSelectListItem() {
    const std::int32_t row = core_.parts.ListView1.rows().selected();
    if (row == no_row) {
        return;
    }
    const std::u16string text = text_of(row);
    scroll_to(row);
    object_.write_text_silently(text);
    core_.events.click();
}

std::u16string Selection::text_of(std::int32_t row) const {
    return std::u16string(core_.parts.ListView1.rows().text(row, core_.state.miTextColumn - 1));
}

void Selection::scroll_to(std::int32_t row) {
    const auto position = static_cast<float>(row + 1);
    const std::int32_t target = std::min(
        to_long(static_cast<double>(position + core_.state.msngDropDownHeight - rows_kept_below)),
        core_.parts.ListView1.rows().count());
    core_.parts.ListView1.ensure_visible(std::max(target, 0) - 1);
}

std::int16_t Selection::TextColumn() const { return core_.state.miTextColumn; }

void Selection::put_TextColumn(std::int16_t column) {
    if (column < 1 || column > core_.state.miColumns) {
        throw HostError(error_number::invalid_property_value);
    }
    core_.state.miTextColumn = column;
    core_.property_changed(u"TextColumn");
}

void Selection::list_clicked() {
    const bool check_box_click = core_.state.mbIgnoreListClick;
    core_.state.mbIgnoreListClick = false;
    if (!check_box_click) {
        subSelectListItem();
        drop_down_.subFocusTextBox();
    }
}

void Selection::list_column_clicked(std::int32_t column) {
    // Every second click of a header reaches the program; forms out there count on it.
    const bool pass = pass_next_column_click_;
    pass_next_column_click_ = !pass;
    if (pass) {
        core_.events.column_click(to_integer(column));
    }
}

void Selection::list_key_down(std::int16_t& key_code, std::int16_t shift) {
    if (shift == 0 && (key_code == key::f4 || key_code == key::escape)) {
        drop_down_.HideList();
    }
    if (key_code == key::tab && shift <= key::shift_mask) {
        key_code = 0;
        leave_by_tab();
    }
}

// The list floats outside the form, where no dialog manager looks for a Tab. The text field hands it on.
void Selection::leave_by_tab() {
    drop_down_.HideList();
    constexpr std::intptr_t pressed_once = 1;
    core_.user32.post_message(core_.live_text_box().window(), message::key_down, key::tab, pressed_once);
}

// A check made with the space bar has no click that belongs to it, so the next one is a choice.
void Selection::list_key_press(std::int16_t& key_ascii) {
    core_.state.mbIgnoreListClick = false;
    if (key_ascii == key::enter) {
        key_ascii = 0;
        list_clicked();
    }
}

} // namespace vellora
