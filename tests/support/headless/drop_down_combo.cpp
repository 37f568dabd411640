// What tests of the drop-down keep asking.
#include "support/headless/drop_down_combo.h"

#include <gtest/gtest.h>

namespace vellora::test {

void DropDownCombo::fill(int rows) {
    columns().put_ColumnWidth(1, 1500);
    add_rows(rows);
    journal().take_all();
}

std::string DropDownCombo::button_look() {
    const bool first = button(0).visible();
    const bool second = button(1).visible();
    if (first == second) {
        return "two buttons or none";
    }
    if (state().mlButtonStyle == vlToggle) {
        return (button(0).value() == 1 ? "pressed " : "raised ") + readable(button(0).caption());
    }
    return second ? "pressed" : "raised";
}

void DropDownCombo::expect_in_order() {
    events.on_drop_down = nullptr;
    drop_down().HideList();
    journal().take_all();
    drop_down().ShowList();
    EXPECT_TRUE(is_open());
    drop_down().HideList();
    EXPECT_FALSE(is_open());
    EXPECT_EQ(journal().take_events(), opened_and_closed);
    EXPECT_EQ(button_look(), "raised");
    EXPECT_EQ(desktop().count("popup"), 0U);
    EXPECT_EQ(desktop().at(list_view.window()).procedure, procedure::own);
}

} // namespace vellora::test
