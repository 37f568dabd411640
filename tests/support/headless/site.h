// A container for one control: ambient and extender properties that a test can switch, and the notices of
// changed properties in the journal.
#pragma once

#include "host/site.h"
#include "support/headless/fonts.h"
#include "support/headless/journal.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace vellora::test {

class HeadlessSite : public Site {
public:
    explicit HeadlessSite(Journal& journal, std::string prefix = {})
        : journal_(journal), prefix_(std::move(prefix)) {}

    bool user_mode() const override { return run_mode; }
    std::u16string display_name() const override { return name; }
    FontRef ambient_font() const override { return font; }
    float extender_width() const override { return width; }
    WindowHandle container_window() const override { return container; }
    WindowHandle form_window() const override { return form; }
    bool form_is_mdi_child() const override { return mdi_child; }
    void property_changed(std::u16string_view property) override {
        journal_.add(Journal::Kind::notice, prefix_ + "Changed(" + readable(property) + ")");
    }

    bool may_change(std::u16string_view property) override { return property != refused; }

    std::shared_ptr<void> keep_alive() override { return holder ? holder() : nullptr; }

    /// The reference the container has to the control.
    std::function<std::shared_ptr<void>()> holder;
    /// The property the container does not allow to change.
    std::u16string refused;
    bool run_mode = true;
    std::u16string name = u"Vellora1";
    FontRef font = make_font(195);
    float width = 3000;
    WindowHandle container = 0;
    WindowHandle form = 0;
    bool mdi_child = false;

private:
    Journal& journal_;
    std::string prefix_;
};

} // namespace vellora::test
