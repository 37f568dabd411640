// Where the drop-down goes and how large it is, with the properties that steer it.
#pragma once

#include "control/core.h"

namespace vellora {

class Placement {
public:
    explicit Placement(ControlCore& core);

    float DropDownHeight() const;
    /// Rows. Error 380 below 1.
    void put_DropDownHeight(float rows);
    float DropDownWidthOffset() const;
    /// Twips, added to the control's width.
    void put_DropDownWidthOffset(float offset);
    std::int32_t DropDownAlignment() const;
    void put_DropDownAlignment(std::int32_t alignment);
    /// The list's own colours.
    OleColor DropDownBackColor() const;
    void put_DropDownBackColor(OleColor color);
    OleColor DropDownForeColor() const;
    void put_DropDownForeColor(OleColor color);

    /// Left, top and width of the drop-down for a control at this place on the screen, in twips; the height is
    /// subSizeListView's to find. Nothing keeps it on the screen. Error 6 on overflow.
    Bounds place(const PixelRect& control) const;
    /// Gives the list view as many rows as DropDownHeight allows and there are, plus borders, headers and scroll bar;
    /// `bounds` becomes what the list view took. The height passed in does not matter.
    void subSizeListView(Bounds& bounds);
    /// Headers show unless they are to be hidden or there are no rows.
    void settle_headers();
    /// 1 for a horizontal scroll bar, 2 for a vertical one, 3 for both, 0 for none.
    int ListScrollBars() const;

private:
    float row_height() const;
    float height_of_rows() const;
    float height_of_headers() const;

    ControlCore& core_;
};

} // namespace vellora
