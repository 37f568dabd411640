// The look of a list: its colours, which follow the system's colour scheme, its font, and the picture behind
// its rows.
#pragma once

#include "runtime/geometry.h"
#include "widgets/win32/list_window.h"
#include "widgets/win32/ole_font.h"
#include "widgets/win32/ole_picture.h"

#include <memory>
#include <optional>

namespace vellora::win32 {

class ListAppearance {
public:
    explicit ListAppearance(const ListWindow& window);

    OleColor fore_color() const { return fore_color_; }
    void set_fore_color(OleColor color);
    OleColor back_color() const { return back_color_; }
    void set_back_color(OleColor color);
    /// To be called before painting: the system's colours may have changed.
    void renew_colors();

    PictureRef picture() const { return picture_; }
    /// Error 380 for an object that is no OLE picture.
    void set_picture(const PictureRef& picture);

    /// Paints the picture under the rows. Nothing for another notification, or when there is no picture.
    std::optional<LRESULT> answer(NMHDR& header) const;
    /// The window handled a message. The picture stands still where rows and columns move, so all is painted
    /// again.
    void message_passed(const WindowMessage& message);

private:
    struct Colors {
        COLORREF text;
        COLORREF ground;
        COLORREF behind_text;
        bool operator==(const Colors&) const = default;
    };
    Colors wanted_colors() const;
    void apply_colors() const;
    LRESULT paint(const NMCUSTOMDRAW& drawing) const;
    void paint_ground(HDC dc) const;
    void paint_selection(HDC dc, int row) const;
    RECT item_rect(int row, int part) const;
    POINT scroll_position() const;

    const ListWindow& window_;
    OleColor fore_color_;
    OleColor back_color_;
    std::shared_ptr<OlePicture> picture_;
    Colors shown_;
    SIZE picture_size_{};
    POINT scrolled_{};
};

} // namespace vellora::win32
