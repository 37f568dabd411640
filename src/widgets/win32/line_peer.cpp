#include "widgets/win32/line_peer.h"

#include "widgets/win32/screen_metrics.h"

namespace vellora::win32 {

LinePeer::LinePeer(FramePeer& frame) : frame_(frame) {
    frame_.add(*this);
}

LinePeer::~LinePeer() {
    frame_.remove(*this);
}

void LinePeer::set_ends(const Ends& ends) {
    ends_ = ends;
    frame_.repaint();
}

void LinePeer::paint(HDC dc) const {
    const UniquePen pen(CreatePen(PS_SOLID, 1, GetSysColor(COLOR_3DDKSHADOW)));
    const SavedDc saved(dc);
    SelectObject(dc, pen.get());
    MoveToEx(dc, pixels_x(ends_.x1), pixels_y(ends_.y1), nullptr);
    LineTo(dc, pixels_x(ends_.x2), pixels_y(ends_.y2));
}

} // namespace vellora::win32
