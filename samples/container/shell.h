// What the parts of the container's window tell the whole.
#pragma once

#include "hosting/event_sink.h"

#include <string>

namespace vellora::samples {

class PlacedControl;

class Shell {
public:
    /// A line for the person in front of the screen.
    virtual void say(const std::wstring& message) = 0;
    /// Another control is the chosen one, or there are others, or the mode is another.
    virtual void selection_changed() = 0;
    /// Values have changed, and with `design` what a save would write. The window shows them when it comes to it.
    virtual void values_changed(bool design) = 0;
    virtual void event_came(const PlacedControl& control, const Event& event) = 0;
    /// The person wants to edit the properties of what is chosen.
    virtual void edit_properties() = 0;

protected:
    ~Shell() = default;
};

} // namespace vellora::samples
