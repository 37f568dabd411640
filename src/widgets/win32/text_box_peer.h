// A text box on the platform's own edit field. It stands on the surface without a border.
#pragma once

#include "runtime/system_colors.h"
#include "widgets/text_box.h"
#include "widgets/win32/edit_margins.h"
#include "widgets/win32/edit_window.h"
#include "widgets/win32/face_painter.h"
#include "widgets/win32/lifeline.h"
#include "widgets/win32/ole_color.h"
#include "widgets/win32/ole_font.h"
#include "widgets/win32/surface_window.h"
#include "widgets/win32/text_box_input.h"
#include "widgets/win32/window_widget.h"

#include <string>

namespace vellora::win32 {

class TextBoxPeer final : public WindowWidget<TextBox>, private EditWindowClient {
public:
    /// Created hidden and without size. Throws std::bad_alloc without a window. The surface outlives the
    /// peer.
    TextBoxPeer(SurfaceWindow& surface, TextAlignment alignment);

    /// What it shows, for a picture of it.
    TextFace face() const;

    void listen(TextBoxListener* listener) override;
    /// Still there after the window is gone.
    std::u16string text() const override;
    void set_text(std::u16string_view text) override;
    std::int32_t selection_start() const override { return edit_.selection().start; }
    std::int32_t selection_length() const override { return edit_.selection().length(); }
    std::u16string selected_text() const override;
    void set_selection_start(std::int32_t start) override;
    void set_selection_length(std::int32_t length) override;
    void set_selected_text(std::u16string_view text) override;
    bool locked() const override { return edit_.locked(); }
    void set_locked(bool locked) override;
    std::int32_t max_length() const override { return max_length_; }
    void set_max_length(std::int32_t length) override;
    FontRef font() const override { return font_.font(); }
    void set_font(const FontRef& font) override { font_.set(font); }
    OleColor fore_color() const override { return fore_color_; }
    void set_fore_color(OleColor color) override;
    OleColor back_color() const override { return back_color_; }
    void set_back_color(OleColor color) override;
    void focus() override;
    bool focused() const override { return edit_.handle() != nullptr && GetFocus() == edit_.handle(); }

private:
    HWND widget_window() const override { return edit_.handle(); }
    LRESULT edit_message(const EditMessage& message) override;
    LRESULT set_colors(HDC dc);
    LRESULT describe(const EditMessage& message);
    LRESULT resize(const EditMessage& message);
    LRESULT compose(const EditMessage& message);
    LRESULT paste(const EditMessage& message);
    LRESULT pass_on_quietly(const EditMessage& message);
    void drop_half_character();
    void note_change();
    void apply_font(HFONT font);
    LRESULT first_visible_character() const;

    Lifeline lifeline_;
    SurfaceWindow& surface_;
    TextAlignment alignment_;
    TextBoxListener* listener_ = nullptr;
    EditWindow edit_;
    EditMargins margins_{edit_};
    TextBoxInput input_;
    std::u16string known_text_;
    bool quiet_ = false; // changes of the moment are not reported one by one
    std::int32_t max_length_ = 0;
    OleColor fore_color_ = system_color::window_text;
    OleColor back_color_ = system_color::window;
    ColorBrush background_;
    FontInUse font_{[this](HFONT font, bool) { apply_font(font); }};
};

} // namespace vellora::win32
