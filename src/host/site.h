// What the container gives an instance: ambient and extender properties, and the notice that a property
// changed. A container that lacks one of them is answered for by a sensible fallback, so nothing here fails.
#pragma once

#include "runtime/geometry.h"
#include "widgets/font.h"

#include <memory>
#include <string>
#include <string_view>

namespace vellora {

class Site {
public:
    virtual ~Site() = default;

    /// False in a form designer, true in the running program.
    virtual bool user_mode() const = 0;
    /// The name of this instance on its form.
    virtual std::u16string display_name() const = 0;
    virtual FontRef ambient_font() const = 0;
    /// Width of the control in twips as its container reports it.
    virtual float extender_width() const = 0;
    virtual WindowHandle container_window() const = 0;
    /// The form the control stands on, 0 when there is none, and whether it is an MDI child.
    virtual WindowHandle form_window() const = 0;
    virtual bool form_is_mdi_child() const = 0;
    virtual void property_changed(std::u16string_view name) = 0;
    /// Whether the container allows a bound property to change; to be asked before it does.
    virtual bool may_change(std::u16string_view name) = 0;
    /// Holds the instance while the result lives. An event handler may let go of the control; whoever enters the
    /// behaviour from a constituent holds this until it is back.
    virtual std::shared_ptr<void> keep_alive() = 0;
};

} // namespace vellora
