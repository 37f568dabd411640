// What every windowed constituent of the control offers.
#pragma once

#include "runtime/geometry.h"

namespace vellora {

/// Lengths are twips relative to the parent's client area. A window sits on whole pixels, so `bounds`
/// gives what `move` was given, rounded to them.
class Widget {
public:
    virtual ~Widget() = default;

    virtual WindowHandle window() const = 0;
    virtual Bounds bounds() const = 0;
    virtual void move(const Bounds& bounds) = 0;
    virtual bool visible() const = 0;
    virtual void set_visible(bool visible) = 0;
    virtual bool enabled() const = 0;
    virtual void set_enabled(bool enabled) = 0;
};

} // namespace vellora
