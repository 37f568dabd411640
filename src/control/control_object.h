// The control itself: how an instance comes up and goes, its text and its windows.
#pragma once

#include "control/core.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace vellora {

class Appearance;
class TextProperties;

class ControlObject {
public:
    ControlObject(ControlCore& core, TextProperties& text_properties, Appearance& appearance);

    /// Prepares the constituents; once, before InitProperties or the first property is loaded.
    void Initialize();
    /// The defaults of an instance that was just placed on a form. Its first half lets errors out; from the text-box
    /// properties on a step that fails is skipped.
    void InitProperties();

    std::u16string Text() const;
    /// Writes the text field and nothing else: neither the list nor the selected row. Does nothing while an earlier
    /// write of this instance is still under way, as in a Change handler that assigns Text again, and when the host
    /// does not allow the text to change.
    void put_Text(std::u16string_view text);
    /// False when the host keeps the text as it is, as for a field that is bound to data nobody may edit.
    bool may_change_text();
    /// The same without asking the host: the text has changed already, or has to follow the selected row.
    void write_text(std::u16string_view text);
    /// Writes the text field as the control's own doing: no completion, no Change event.
    void write_text_silently(std::u16string_view text);

    WindowHandle hWnd() const;
    WindowHandle ContainerHwnd() const;
    /// Repaints the surface; the rows count as settled from then on.
    void Refresh();

private:
    void prepare_grip(std::size_t element, OleColor color, std::u16string_view glyph);
    void reset_state();
    void show_own_name();

    ControlCore& core_;
    TextProperties& text_properties_;
    Appearance& appearance_;
    bool writing_text_ = false;
};

} // namespace vellora
