#include "fuzz/loaded_control.h"

#include "fuzz/fuzzer.h"
#include "support/headless/failure.h"
#include "support/headless/stored_settings.h"
#include "support/headless/user.h"

namespace vellora::fuzz {

namespace {

using namespace vellora::test;

constexpr int most_actions = 40;

/// Whether loading came to its end.
bool load(HeadlessControl& combo, PropertyBag& bag) {
    const bool whole = failure_of([&] { combo.persistence().ReadProperties(bag); }) == no_failure;
    const ControlState& state = combo.state();
    require(state.mbLoadingProperties != whole,
            "loading ends whole, or in the middle and then still counts as loading");
    require(!whole || (state.miColumns >= 1 && state.miColumns <= maximum_columns), "columns out of range");
    require(!state.mbIgnoreChange, "changes of the text are ignored for good");
    return whole;
}

Settings save(HeadlessControl& combo) {
    HeadlessPropertyBag bag;
    combo.persistence().WriteProperties(bag);
    return settings_of(bag);
}

void expect_the_same_again(HeadlessControl& combo, Mode mode) {
    const Bytes saved = encode_settings(save(combo));
    HeadlessPropertyBag bag = bag_of(decode_settings(saved));
    HeadlessControl again(mode, Stage::created);
    again.site.font = combo.site.font;
    require(load(again, bag), "what a whole control saved does not load");
    require(encode_settings(save(again)) == saved, "what a whole control saved changes when it is loaded");
}

void save_whatever_comes(HeadlessControl& combo) {
    HeadlessPropertyBag bag;
    failure_of([&] { combo.persistence().WriteProperties(bag); });
}

void act(HeadlessControl& combo, PropertyBag& bag, std::uint8_t choice, std::uint8_t detail) {
    User user(combo);
    const auto column = static_cast<std::int16_t>(detail % 60);
    switch (choice % 17) {
    case 0:
        return combo.drop_down().ShowList();
    case 1:
        return combo.drop_down().HideList();
    case 2:
        return user.click_button();
    case 3:
        return user.type(u"row");
    case 4:
        return user.press_backspace();
    case 5:
        user.press_key(detail % 2 == 0 ? 40 : 38);
        return;
    case 6:
        return user.click_row(detail % 4 - 1);
    case 7:
        return combo.add_rows(detail % 3);
    case 8:
        return combo.columns().put_Columns(column);
    case 9:
        return combo.columns().put_ColumnWidth(column, static_cast<float>(detail) * 10);
    case 10:
        return combo.auto_size().AutoSizeNow(column);
    case 11:
        return combo.sort_and_search().put_SortColumn(column);
    case 12:
        return combo.surface.resize(static_cast<float>(detail) * 40, static_cast<float>(detail));
    case 13:
        return combo.items().Clear();
    case 14:
        return combo.text_properties().put_Alignment(detail % 4);
    case 15:
        return combo.persistence().ReadProperties(bag);
    default:
        return save_whatever_comes(combo);
    }
}

void use(HeadlessControl& combo, PropertyBag& bag, const Choose& choose) {
    combo.events.on_drop_down = [&](DropDownState) { save_whatever_comes(combo); };
    const auto attempt = [](const auto& action) { failure_of(action); };
    attempt([&] { combo.size(); });
    attempt([&] { combo.add_rows(3); });
    attempt([&] { combo.drop_down().ShowList(); });
    attempt([&] { User(combo).click_row(1); });
    for (int actions = choose() % most_actions; actions > 0; --actions) {
        const std::uint8_t choice = choose();
        attempt([&] { act(combo, bag, choice, choose()); });
    }
    attempt([&] { combo.drop_down().HideList(); });
    save_whatever_comes(combo);
}

} // namespace

void load_and_use(PropertyBag& bag, Mode mode, const Choose& choose) {
    HeadlessControl combo(mode, Stage::created);
    if (load(combo, bag)) {
        expect_the_same_again(combo, mode);
    }
    use(combo, bag, choose);
    load(combo, bag);
    save_whatever_comes(combo);
}

} // namespace vellora::fuzz
