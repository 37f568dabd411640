// Thousands of keys, clicks and settings around the text field in no order at all, the same ones in every run, with
// handlers that do anything in the middle of an event. Whatever happens, some things always hold.
#include "native/fruit.h"
#include "support/headless/failure.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <random>
#include <vector>

namespace vellora::test {

namespace {

class TypingWalk {
public:
    /// With `lets_go` some handler ends the control sooner or later.
    explicit TypingWalk(unsigned seed, bool lets_go = false) : random_(seed), lets_go_(lets_go) {
        combo_.state().mlButtonStyle = number(0, 1);
        EventRecorder& events = combo_.events;
        events.on_change = [this] { meddle(); };
        events.on_click = [this] { meddle(); };
        events.on_double_click = [this] { meddle(); };
        events.on_drop_down = [this](DropDownState) { meddle(); };
        events.on_key_down = [this](std::int16_t& code, std::int16_t& shift) { change_keys(code, shift); };
        events.on_key_up = [this](std::int16_t& code, std::int16_t& shift) { change_keys(code, shift); };
        events.on_key_press = [this](std::int16_t& ascii) { change_keys(ascii, ascii); };
        events.on_mouse_down = [this](std::int16_t&, std::int16_t&, float&, float&) { meddle(); };
        events.on_mouse_up = events.on_mouse_down;
    }

    void step() {
        depth_ = 0;
        if (number(0, 2) == 0) {
            call_member();
        } else {
            act(gestures_);
        }
        combo_.journal().take_all();
    }

    void expect_order() {
        const ControlState& state = combo_.state();
        EXPECT_FALSE(state.mbIgnoreChange);
        EXPECT_FALSE(state.mbLoadingProperties);
        EXPECT_EQ(gbListOpen, state.mlStatic_hWnd != 0);
        const bool live = state.mlAlignment >= 0 && state.mlAlignment <= 2;
        for (std::int32_t element = 0; element < 3; ++element) {
            const HeadlessTextBox& box = combo_.text_box(static_cast<std::size_t>(element));
            EXPECT_EQ(box.visible(), element == state.mlAlignment);
            EXPECT_GE(box.selection_start(), 0);
            EXPECT_LE(static_cast<std::size_t>(box.selection_start() + box.selection_length()), box.text().size());
        }
        if (live) {
            HeadlessTextBox& box = combo_.text_box(static_cast<std::size_t>(state.mlAlignment));
            EXPECT_EQ(combo_.object().Text(), box.text());
            EXPECT_EQ(box.enabled(), state.mbEnabled);
            EXPECT_EQ(box.locked(), state.mbLocked);
        }
        const std::int32_t index = combo_.selection().ListIndex();
        EXPECT_GE(index, -1);
        EXPECT_LT(index, combo_.items().ListCount());
    }

    // With its settings put back it is as good as new.
    void expect_to_work() {
        forget_handlers();
        combo_.text_properties().put_Alignment(0);
        combo_.drop_down().HideList();
        combo_.items().ClearAll();
        combo_.columns().put_Columns(1);
        combo_.selection().put_TextColumn(1);
        for (const char16_t* name : {u"Apple", u"apricot", u"Banana"}) {
            combo_.add(name);
        }
        combo_.text_properties().put_MaxLength(0);
        combo_.text_properties().put_Locked(false);
        combo_.appearance().put_Enabled(true);
        combo_.site.refused.clear();
        combo_.text_field().put_AutoComplete(true);
        combo_.user.click_elsewhere();
        combo_.user.click_text();
        combo_.user.type(u"xy"); // a deletion before may have left the first to be skipped
        combo_.selection().put_ListIndex(-1);
        combo_.object().put_Text(u"");
        combo_.journal().take_all();
        combo_.user.type(u"b");
        EXPECT_EQ(combo_.object().Text(), u"Banana");
        EXPECT_EQ(combo_.text_properties().SelText(), u"anana");
        EXPECT_EQ(combo_.journal().take_events(),
                  (Lines{"KeyDown(66, 0)", "KeyPress(98)", "Click", "Change", "Change", "KeyUp(66, 0)"}));
    }

    HeadlessControl& combo() { return combo_; }
    bool is_over() const { return combo_.hold() == nullptr; }

private:
    int number(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random_); }
    bool flag() { return number(0, 1) == 1; }
    std::int16_t small() { return static_cast<std::int16_t>(number(-2, 5)); }
    std::u16string_view text() {
        constexpr std::u16string_view texts[] = {u"",           u"a",        u"APR",        u"Banana",
                                                 u"\U0001F600", u"\xDE00 x", u"a long text"};
        return texts[static_cast<std::size_t>(number(0, 6))];
    }
    std::int16_t key() {
        constexpr std::int16_t keys[] = {8, 9, 13, 27, 37, 38, 39, 40, 46, 65, 115, 229, -1, 0};
        return keys[static_cast<std::size_t>(number(0, 13))];
    }

    void change_keys(std::int16_t& code, std::int16_t& shift) {
        if (number(0, 5) == 0) {
            code = key();
            shift = flag() ? shift : small();
        }
        meddle();
    }

    /// A handler: often does nothing, sometimes anything.
    void meddle() {
        if (lets_go_ && number(0, 30) == 0) {
            combo_.release();
        } else if (combo_.hold() && depth_ < 4 && number(0, 2) == 0) {
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

    void forget_handlers() {
        combo_.events.on_change = combo_.events.on_click = combo_.events.on_double_click = {};
        combo_.events.on_drop_down = {};
        combo_.events.on_key_down = combo_.events.on_key_up = {};
        combo_.events.on_key_press = {};
        combo_.events.on_mouse_down = combo_.events.on_mouse_up = {};
    }

    template <class Act>
    void with_listener(Act act) {
        const std::size_t element = static_cast<std::size_t>(number(0, 2)); // also one that is not live
        if (TextBoxListener* listener = combo_.text_box(element).listener()) {
            act(*listener);
        }
    }

    void press_and_click() {
        std::int16_t button = 1;
        std::int16_t shift = 0;
        float x = std::numeric_limits<float>::infinity();
        float y = -1;
        with_listener([&](TextBoxListener& to) { to.text_mouse_down(button, shift, x, y); });
        with_listener([&](TextBoxListener& to) { to.text_mouse_up(button, shift, x, y); });
        with_listener([](TextBoxListener& to) { to.text_double_click(); });
    }

    std::mt19937 random_;
    bool lets_go_;
    Fruit combo_;
    int depth_ = 0;
    /// What a program does, also in the middle of an event.
    const std::vector<std::function<void()>> members_{
        [this] { combo_.object().put_Text(text()); },
        [this] { combo_.text_properties().put_SelText(text()); },
        [this] { combo_.text_properties().put_SelStart(small()); },
        [this] { combo_.text_properties().put_SelLength(small()); },
        [this] { combo_.text_properties().put_Alignment(number(0, 2)); },
        [this] { combo_.text_properties().put_Alignment(number(0, 9) == 0 ? 7 : 0); },
        [this] { combo_.text_properties().put_MaxLength(small()); },
        [this] { combo_.text_properties().put_Locked(flag()); },
        [this] { combo_.text_properties().put_RightMargin(number(-70000, 70000)); },
        [this] { combo_.appearance().put_Enabled(flag()); },
        [this] { combo_.appearance().putref_Font(flag() ? make_font(100) : nullptr); },
        [this] { combo_.appearance().put_BackColor(static_cast<OleColor>(number(-1, 0xFFFFFF))); },
        [this] { combo_.text_field().put_AutoComplete(flag()); },
        [this] { combo_.selection().put_ListIndex(small()); },
        [this] { combo_.selection().put_TextColumn(small()); },
        [this] { combo_.columns().put_Columns(small()); },
        [this] { combo_.items().Clear(); },
        [this] { combo_.items().ClearAll(); },
        [this] { combo_.items().RemoveItem(small()); },
        [this] { combo_.add(std::u16string(text())); },
        [this] { combo_.write(small(), 1, std::u16string(text())); },
        [this] { combo_.sort_and_search().put_Sorted(flag()); },
        [this] { combo_.drop_down().ShowList(); },
        [this] { combo_.drop_down().HideList(); },
        [this] { combo_.site.refused = flag() ? u"Text" : u""; },
        [this] { combo_.user.click_text(); },
        [this] { combo_.user.click_elsewhere(); },
    };
    /// What only a person does, between events.
    const std::vector<std::function<void()>> gestures_{
        [this] { combo_.user.type(u"ap"); },
        [this] { combo_.user.type(u"b"); },
        [this] { combo_.user.type(u"x"); },
        [this] { combo_.user.press_backspace(); },
        [this] { combo_.user.press_delete(); },
        [this] { combo_.user.press_key(key(), flag() ? std::int16_t{0} : small()); },
        [this] { combo_.user.click_button(); },
        [this] { combo_.user.click_text(); },
        [this] { press_and_click(); },
        [this] { with_listener([](TextBoxListener& to) { to.text_changed(); }); },
        [this] { with_listener([](TextBoxListener& to) { to.text_got_focus(); }); },
    };
};

} // namespace

TEST(TypingWalk, KeepsTheControlInOrder) {
    for (unsigned seed = 1; seed <= 60 && !::testing::Test::HasFailure(); ++seed) {
        TypingWalk walk(seed);
        for (int step = 0; step < 400 && !::testing::Test::HasFailure(); ++step) {
            walk.step();
            walk.expect_order();
            if (::testing::Test::HasFailure()) {
                ADD_FAILURE() << "seed " << seed << " step " << step;
            }
        }
        walk.expect_to_work();
    }
}

TEST(TypingWalk, MayEndInAnyHandler) {
    for (unsigned seed = 1; seed <= 400; ++seed) {
        TypingWalk walk(seed, true);
        for (int step = 0; step < 300 && !walk.is_over(); ++step) {
            walk.step();
        }
        walk.combo().release();
        EXPECT_EQ(walk.combo().desktop().count("popup"), 0U) << seed;
        EXPECT_FALSE(gbListOpen) << seed;
    }
}

} // namespace vellora::test
