// A control somebody is about to type in.
#pragma once

#include "support/headless/headless_control.h"
#include "support/headless/user.h"

namespace vellora::test {

/// Rows Apple, apricot, Banana; completion on; everything selected, so that typing starts afresh.
struct Fruit : HeadlessControl {
    Fruit() {
        for (const char16_t* name : {u"Apple", u"apricot", u"Banana"}) {
            add(name);
        }
        text_field().put_AutoComplete(true);
        user.click_text();
        journal().take_all();
    }
    User user{*this};
};

} // namespace vellora::test
