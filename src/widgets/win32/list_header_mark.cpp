#include "widgets/win32/list_header_mark.h"

#include "widgets/win32/list_cell_text.h"
#include "widgets/win32/window_widget.h"

#include <algorithm>

namespace vellora::win32 {

void ListHeaderMark::put(int column) {
    const bool moved = column != column_;
    column_ = column;
    redraw(window_.header());
    if (column < 0)
        return;
    bring_into_view();
    if (moved)
        NotifyWinEvent(EVENT_OBJECT_FOCUS, window_.header(), OBJID_CLIENT, column + 1);
}

RECT ListHeaderMark::header_rect() const {
    RECT rect{};
    SendMessageW(window_.header(), HDM_GETITEMRECT, static_cast<WPARAM>(column_), reinterpret_cast<LPARAM>(&rect));
    return rect;
}

void ListHeaderMark::bring_into_view() const {
    RECT rect = header_rect();
    MapWindowPoints(window_.header(), window_.handle(), reinterpret_cast<POINT*>(&rect), 2);
    const LONG beyond = std::max(rect.right - window_.client_area().right, 0L);
    const LONG scroll = std::min(rect.left, beyond);
    if (scroll != 0)
        SendMessageW(window_.handle(), LVM_SCROLL, static_cast<WPARAM>(scroll), 0);
}

void ListHeaderMark::draw_over(const WindowMessage& message) const {
    const auto* const drawing = structure_at<const NMCUSTOMDRAW>(message.lparam);
    if (column_ >= 0 && drawing && drawing->dwDrawStage == CDDS_POSTPAINT)
        draw(drawing->hdc);
}

void ListHeaderMark::draw(HDC dc) const {
    RECT rect = header_rect();
    InflateRect(&rect, -GetSystemMetrics(SM_CXEDGE), -GetSystemMetrics(SM_CYEDGE));
    // A column that was made too narrow for it, or is gone.
    if (IsRectEmpty(&rect))
        return;
    // The dots are between these two.
    SetTextColor(dc, RGB(0, 0, 0));
    SetBkColor(dc, RGB(255, 255, 255));
    DrawFocusRect(dc, &rect);
}

} // namespace vellora::win32
