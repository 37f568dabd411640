// Thousands of members, clicks and keys in no order at all, the same ones in every run. Whatever they do,
// some things always hold.
#include "control/keys.h"
#include "dropdown/open_list.h"
#include "support/headless/failure.h"
#include "support/headless/headless_control.h"
#include "support/headless/user.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <random>
#include <vector>

namespace vellora::test {

namespace {

class Walk {
public:
    /// With `lets_go` some handler ends the control sooner or later.
    explicit Walk(unsigned seed, bool lets_go = false) : random_(seed), lets_go_(lets_go) {
        combo_.columns().put_Columns(3);
        combo_.state().mlButtonStyle = number(0, 1);
        combo_.state().mbAllowResize = number(0, 1) == 1;
        combo_.events.on_click = [this] { meddle(); };
        combo_.events.on_change = [this] { meddle(); };
        combo_.events.on_drop_down = [this](DropDownState) { meddle(); };
        combo_.events.on_column_reorder = [this] { meddle(); };
        combo_.events.on_column_click = [this](std::int16_t) { meddle(); };
        combo_.events.on_item_check = [this](std::int16_t, bool, bool& cancel) {
            cancel = number(0, 1) == 1;
            meddle();
        };
    }

    void step() {
        depth_ = 0;
        if (number(0, 1) == 0) {
            call_member();
        } else {
            act(gestures_);
        }
        for (const std::string& line : combo_.journal().take_events()) {
            opened_ += line == "DropDown(open)" ? 1 : 0;
            closed_ += line == "DropDown(closed)" ? 1 : 0;
        }
        combo_.journal().take_all();
    }

    void expect_order() {
        ControlState& state = combo_.state();
        EXPECT_GE(state.miColumns, 1);
        EXPECT_LE(state.miColumns, 50);
        EXPECT_FALSE(state.mbIgnoreChange);
        EXPECT_FALSE(state.mbLoadingProperties);
        const std::int32_t index = combo_.selection().ListIndex();
        EXPECT_GE(index, -1);
        EXPECT_LT(index, combo_.items().ListCount());
        const bool open = state.mlStatic_hWnd != 0;
        EXPECT_EQ(combo_.desktop().count("popup"), open ? 1U : 0U);
        EXPECT_EQ(combo_.desktop().at(combo_.list_view.window()).procedure,
                  open ? procedure::replaced : procedure::own);
        EXPECT_EQ(combo_.list_view.visible(), open);
        EXPECT_EQ(gbListOpen, open);
        EXPECT_TRUE(open || combo_.list_view.marked_header() == 0);
        EXPECT_EQ(combo_.frame.tag().empty(), !open || !state.mbAllowResize);
        expect_button(open);
        EXPECT_EQ(opened_, closed_ + (open ? 1 : 0));
    }

    void expect_button(bool open) {
        const bool toggle = combo_.state().mlButtonStyle == vlToggle;
        EXPECT_NE(combo_.button(0).visible(), combo_.button(1).visible());
        if (toggle) {
            EXPECT_EQ(combo_.button(0).value(), open ? 1 : 0);
            EXPECT_EQ(combo_.button(0).caption(), open ? u"5" : u"6");
        } else {
            EXPECT_EQ(combo_.button(1).visible(), open);
        }
    }

    HeadlessControl& combo() { return combo_; }
    bool is_over() const { return combo_.hold() == nullptr; }

private:
    int number(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random_); }
    std::int16_t small() { return static_cast<std::int16_t>(number(-2, 6)); }

    /// A handler: often does nothing, sometimes anything.
    void meddle() {
        if (lets_go_ && number(0, 20) == 0) {
            combo_.release();
        } else if (combo_.hold() && depth_ < 3 && number(0, 3) == 0) {
            ++depth_;
            call_member();
            --depth_;
        }
    }

    /// Whoever calls a member holds the control meanwhile.
    void call_member() {
        const auto caller = combo_.hold();
        act(members_);
    }

    void act(const std::vector<std::function<void()>>& choices) {
        failure_of(choices[static_cast<std::size_t>(number(0, static_cast<int>(choices.size()) - 1))]);
    }

    TestVariant item() {
        switch (number(0, 3)) {
        case 0:
            return TestVariant(u"Apple");
        case 1:
            return TestVariant::array({u"apricot", u"b", u"c"});
        case 2:
            return TestVariant(Null{});
        default:
            return TestVariant::array({{0, 1}, {0, 1}}, {u"a", u"b", u"c", u"d"});
        }
    }

    std::mt19937 random_;
    bool lets_go_;
    HeadlessControl combo_;
    User user_{combo_};
    int depth_ = 0;
    int opened_ = 0;
    int closed_ = 0;
    /// What a program does, also in the middle of an event.
    const std::vector<std::function<void()>> members_{
        [this] { combo_.add(item(), small()); },
        [this] { combo_.add(u"Banana"); },
        [this] { combo_.write(small(), small(), item()); },
        [this] { combo_.items().RemoveItem(small()); },
        [this] { combo_.items().Clear(); },
        [this] { combo_.items().ClearAll(); },
        [this] { combo_.items().List(small(), small()); },
        [this] { combo_.items().put_ItemData(small(), number(0, 9)); },
        [this] { combo_.items().ItemData(small()); },
        [this] { combo_.columns().put_Columns(small()); },
        [this] { combo_.columns().put_ColumnWidth(small(), static_cast<float>(number(-1, 3000))); },
        [this] { combo_.columns().put_ColumnHidden(small(), number(0, 1) == 1); },
        [this] { combo_.columns().put_ColumnLocked(small(), number(0, 1) == 1); },
        [this] { combo_.columns().put_HideColumnHeaders(number(0, 1) == 1); },
        [this] { combo_.column_order().put_AllowColumnReorder(number(0, 1) == 1); },
        [this] { combo_.resize_grip().put_AllowResize(number(0, 1) == 1); },
        [this] { combo_.selection().put_ListIndex(small()); },
        [this] { combo_.selection().put_TextColumn(small()); },
        [this] { combo_.placement().put_DropDownHeight(static_cast<float>(number(0, 10))); },
        [this] { combo_.sort_and_search().put_Sorted(number(0, 1) == 1); },
        [this] { combo_.sort_and_search().put_SortColumn(small()); },
        [this] { combo_.sort_and_search().FindItem(item(), small(), small(), number(0, 1)); },
        [this] { combo_.auto_size().put_AutoSize(small()); },
        [this] { combo_.auto_size().AutoSizeNow(small()); },
        [this] { combo_.check_boxes().put_Checked(small(), number(0, 1) == 1); },
        [this] { combo_.text_field().put_AutoComplete(number(0, 1) == 1); },
        [this] { combo_.text_properties().put_Alignment(number(0, 2)); },
        [this] { combo_.object().put_Text(number(0, 1) == 1 ? u"Apple" : u""); },
        [this] { combo_.drop_down().ShowList(); },
        [this] { combo_.drop_down().HideList(); },
        [this] { user_.click_text(); },
        [this] { user_.click_elsewhere(); },
        [this] { combo_.form_watch.disturb(); },
        [this] { combo_.surface.resize(static_cast<float>(number(0, 6000)), 315); },
    };
    /// What only a person does, between events.
    const std::vector<std::function<void()>> gestures_{
        [this] { user_.click_button(); },
        [this] { user_.type(u"ap"); },
        [this] { user_.press_backspace(); },
        [this] { user_.press_key(static_cast<std::int16_t>(number(0, 1) == 1 ? 40 : 38)); },
        [this] { user_.press_key(115); },
        [this] { click_some_row(); },
        [this] { check_some_row(); },
        [this] { user_.press_key_in_list(13); },
        [this] { user_.press_key_in_list(key::f6); },
        [this] { press_header_key(); },
        [this] { press_header_key(); },
        [this] { user_.press_key_in_list(115); },
        [this] { user_.drag_divider(number(0, 4)); },
        [this] { user_.drop_header(); },
    };

    void click_some_row() {
        const std::int32_t count = combo_.items().ListCount();
        user_.click_row(number(-1, count - 1));
    }
    void press_header_key() {
        constexpr std::array keys{key::left, key::right, key::up,     key::down, key::space,
                                  key::enter, key::add,  key::escape, key::f6};
        const auto held = static_cast<std::int16_t>(number(0, 3));
        user_.press_key_in_list(keys[static_cast<std::size_t>(number(0, static_cast<int>(keys.size()) - 1))], held);
    }
    void check_some_row() {
        const std::int32_t count = combo_.items().ListCount();
        if (count > 0) {
            user_.click_check_box(number(0, count - 1));
        }
    }
};

} // namespace

TEST(RandomWalk, KeepsTheControlInOrder) {
    for (unsigned seed = 1; seed <= 20 && !::testing::Test::HasFailure(); ++seed) {
        Walk walk(seed);
        for (int step = 0; step < 500 && !::testing::Test::HasFailure(); ++step) {
            walk.step();
            walk.expect_order();
            if (::testing::Test::HasFailure()) {
                ADD_FAILURE() << "seed " << seed << " step " << step;
            }
        }
    }
}

TEST(RandomWalk, EndsAnywhereWithoutLeavingAWindow) {
    for (unsigned seed = 100; seed < 140; ++seed) {
        Walk walk(seed);
        for (unsigned step = 0; step < seed; ++step) {
            walk.step();
        }
        walk.combo().release();
        EXPECT_EQ(walk.combo().desktop().count("popup"), 0U) << seed;
        EXPECT_FALSE(gbListOpen) << seed;
    }
}

TEST(RandomWalk, MayEndInAnyHandler) {
    for (unsigned seed = 1; seed <= 100; ++seed) {
        Walk walk(seed, true);
        for (int step = 0; step < 300 && !walk.is_over(); ++step) {
            walk.step();
        }
        walk.combo().release();
        EXPECT_EQ(walk.combo().desktop().count("popup"), 0U) << seed;
        EXPECT_EQ(walk.combo().list_view.rows().count(), 0) << seed;
        EXPECT_FALSE(gbListOpen) << seed;
    }
}

} // namespace vellora::test
