// The control's own window: the ground its constituents stand on.
#pragma once

#include "widgets/font.h"
#include "runtime/geometry.h"

#include <string_view>

namespace vellora {

class SurfaceListener {
public:
    virtual void surface_resized() = 0;
    /// The surface itself lost a focus it had kept; one it passes on to its text box does not count.
    virtual void surface_lost_focus() = 0;
    /// The focus left the control altogether, its open list included.
    virtual void surface_focus_left() = 0;
    /// Somebody gave the font object in use another look.
    virtual void surface_font_changed() = 0;
    /// The control was hidden or disabled.
    virtual void surface_withdrawn() = 0;
    /// The window goes, with those in it.
    virtual void surface_destroyed() = 0;

protected:
    ~SurfaceListener() = default;
};

/// What assistive software is told as it happens, and of an open list also the container, whose keys it shares.
enum class Announcement { value_changed, list_opened_or_closed };

/// Lengths are twips.
class Surface {
public:
    virtual ~Surface() = default;

    virtual void listen(SurfaceListener* listener) = 0;
    virtual WindowHandle window() const = 0;
    /// Whether it stands on the screen: it and all that it stands in are visible, and its form is not minimised.
    virtual bool shown() const = 0;
    /// Outer size as the container reports it, and the width of the client area the constituents stand in.
    virtual float width() const = 0;
    virtual float height() const = 0;
    virtual float client_width() const = 0;
    /// Asks the container for another height. When it grants one, Layout runs again before this returns.
    virtual void set_height(float height) = 0;
    /// Height of a line of text in the surface's font.
    virtual float text_height(std::u16string_view text) const = 0;
    virtual void set_font(const FontRef& font) = 0;
    virtual void set_back_color(OleColor color) = 0;
    virtual void set_enabled(bool enabled) = 0;
    virtual void refresh() = 0;
    virtual void announce(Announcement what) = 0;
    /// The screen's twips per pixel: 15 at 96 dpi, 12 at 120, 10 at 144.
    virtual float twips_per_pixel_x() const = 0;
    virtual float twips_per_pixel_y() const = 0;
};

} // namespace vellora
