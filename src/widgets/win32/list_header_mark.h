// The header that the keyboard acts on, shown by the platform's focus rectangle. Columns are counted from 0, -1 is
// none.
#pragma once

#include "widgets/win32/list_window.h"

namespace vellora::win32 {

class ListHeaderMark {
public:
    explicit ListHeaderMark(const ListWindow& window) : window_(window) {}

    int column() const { return column_; }
    /// Scrolls the header into view.
    void put(int column);
    /// Draws the rectangle over a header that tells it has painted. Once only: two rectangles show none.
    void draw_over(const WindowMessage& message) const;

private:
    RECT header_rect() const;
    void bring_into_view() const;
    void draw(HDC dc) const;

    const ListWindow& window_;
    int column_ = -1;
};

} // namespace vellora::win32
