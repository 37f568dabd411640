#include "textfield/text_field.h"

#include "control/control_object.h"
#include "control/keys.h"
#include "dropdown/drop_down.h"
#include "items/selection.h"
#include "textfield/whole_text.h"

namespace vellora {

TextField::TextField(ControlCore& core, ControlObject& object, Selection& selection, DropDown& drop_down)
    : core_(core), object_(object), selection_(selection), drop_down_(drop_down) {}

bool TextField::AutoComplete() const { return core_.state.mbAutoComplete; }

void TextField::put_AutoComplete(bool value) {
    core_.state.mbAutoComplete = value;
    core_.property_changed(u"AutoComplete");
}

void TextField::key_down(std::int16_t& key_code, std::int16_t& shift) {
    if (shift != 0) {
        return;
    }
    if (key_code == key::f4) {
        key_code = 0;
        drop_down_.ShowList();
        return;
    }
    core_.events.key_down(key_code, shift);
    if (key_code == key::down || key_code == key::up) {
        const std::int16_t by = key_code == key::down ? 1 : -1;
        key_code = 0;
        step(by);
        return;
    }
    core_.state.mbKeyTyped = true;
    const bool deletes = key_code == key::backspace || key_code == key::del;
    if (core_.state.mbAutoComplete && deletes && !core_.live_text_box().text().empty()) {
        core_.state.mbDeleteTyped = true;
    }
}

void TextField::step(std::int16_t by) {
    const std::int32_t count = core_.parts.ListView1.rows().count();
    const std::int32_t index = selection_.ListIndex() + by;
    if (index >= 0 && index < count) {
        selection_.put_ListIndex(index);
        select_whole_text(core_.live_text_box());
    }
}

void TextField::key_up(std::int16_t& key_code, std::int16_t& shift) {
    core_.state.mbKeyTyped = false;
    if (shift == 0 && key_code == key::f4) {
        key_code = 0;
    }
    if (shift != 0 || key_code != 0) {
        core_.events.key_up(key_code, shift);
    }
}

void TextField::changed() {
    ControlState& state = core_.state;
    if (state.mbAutoComplete && state.mbKeyTyped && !state.mbLoadingProperties && !state.mbIgnoreChange) {
        if (core_.live_text_box().text().empty() || state.mbDeleteTyped) {
            state.mbDeleteTyped = false;
            return;
        }
        complete();
    }
    if (!state.mbIgnoreChange) {
        object_.write_text(core_.live_text_box().text());
        core_.events.change();
    }
}

void TextField::complete() {
    const std::u16string typed = core_.live_text_box().text();
    const ListRows& rows = core_.parts.ListView1.rows();
    const std::int32_t row = rows.first_beginning_with(typed, core_.state.miTextColumn - 1);
    if (row >= 0) {
        complete_with(row);
    }
}

void TextField::complete_with(std::int32_t row) {
    TextBox& text_box = core_.live_text_box();
    const std::int32_t caret = text_box.selection_start();
    const std::u16string whole(core_.parts.ListView1.rows().text(row, core_.state.miTextColumn - 1));
    text_box.set_text(whole);
    text_box.set_selection_start(caret);
    text_box.set_selection_length(static_cast<std::int32_t>(whole.size()) - caret);
    selection_.put_ListIndex(row);
}

void TextField::focus_left() { core_.state.mbKeyTyped = false; }

void TextField::got_focus() {
    if (core_.state.mlButtonStyle == vlToggle) {
        core_.user32.release_capture();
    }
    select_whole_text(core_.live_text_box());
    // Whoever comes to the field is about to type.
    if (core_.state.mbAutoComplete) {
        core_.parts.ListView1.rows().prepare_completion(core_.state.miTextColumn - 1);
    }
}

} // namespace vellora
