#include "widgets/win32/list_appearance.h"

#include "runtime/host_error.h"
#include "runtime/system_colors.h"
#include "widgets/win32/handles.h"
#include "widgets/win32/ole_color.h"
#include "widgets/win32/window_widget.h"

namespace vellora::win32 {

ListAppearance::ListAppearance(const ListWindow& window)
    : window_(window), fore_color_(system_color::window_text), back_color_(system_color::window),
      shown_(wanted_colors()) {
    apply_colors();
}

void ListAppearance::set_fore_color(OleColor color) {
    fore_color_ = checked_color(color);
    renew_colors();
}

void ListAppearance::set_back_color(OleColor color) {
    back_color_ = checked_color(color);
    renew_colors();
}

ListAppearance::Colors ListAppearance::wanted_colors() const {
    const COLORREF back = to_color_ref(back_color_);
    return {to_color_ref(fore_color_), back, picture_ ? CLR_NONE : back};
}

void ListAppearance::renew_colors() {
    const Colors wanted = wanted_colors();
    if (wanted == shown_)
        return;
    shown_ = wanted;
    apply_colors();
}

void ListAppearance::apply_colors() const {
    window_.native(LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(shown_.text));
    window_.native(LVM_SETBKCOLOR, 0, static_cast<LPARAM>(shown_.ground));
    window_.native(LVM_SETTEXTBKCOLOR, 0, static_cast<LPARAM>(shown_.behind_text));
    redraw(window_.handle());
}

void ListAppearance::set_picture(const PictureRef& picture) {
    auto ole_picture = std::dynamic_pointer_cast<OlePicture>(picture);
    if (picture && !ole_picture)
        throw HostError(error_number::invalid_property_value);
    picture_ = std::move(ole_picture);
    picture_size_ = picture_ ? picture_->pixel_size() : SIZE{};
    scrolled_ = scroll_position();
    renew_colors();
    redraw(window_.handle());
}

std::optional<LRESULT> ListAppearance::answer(NMHDR& header) const {
    if (!picture_ || static_cast<UINT>(header.code) != NM_CUSTOMDRAW)
        return std::nullopt;
    return paint(reinterpret_cast<const NMLVCUSTOMDRAW&>(header).nmcd);
}

LRESULT ListAppearance::paint(const NMCUSTOMDRAW& drawing) const {
    if (drawing.dwDrawStage == CDDS_PREPAINT) {
        paint_ground(drawing.hdc);
        return CDRF_NOTIFYITEMDRAW;
    }
    if (drawing.dwDrawStage == CDDS_ITEMPREPAINT)
        paint_selection(drawing.hdc, static_cast<int>(drawing.dwItemSpec));
    return CDRF_DODEFAULT;
}

// Over a picture the window marks no more of a selected row than its texts.
void ListAppearance::paint_selection(HDC dc, int row) const {
    if (!window_.native(LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_SELECTED))
        return;
    RECT rect = item_rect(row, LVIR_BOUNDS);
    rect.left = item_rect(row, LVIR_LABEL).left;
    FillRect(dc, &rect, GetSysColorBrush(GetFocus() == window_.handle() ? COLOR_HIGHLIGHT : COLOR_BTNFACE));
}

RECT ListAppearance::item_rect(int row, int part) const {
    RECT rect{};
    rect.left = part;
    window_.native(LVM_GETITEMRECT, static_cast<WPARAM>(row), &rect);
    return rect;
}

void ListAppearance::paint_ground(HDC dc) const {
    RECT ground = window_.client_area();
    const UniqueBrush brush(CreateSolidBrush(shown_.ground));
    FillRect(dc, &ground, brush.get());
    RECT header{};
    if (IsWindowVisible(window_.header()) && GetWindowRect(window_.header(), &header))
        ground.top = header.bottom - header.top;
    picture_->draw(dc, {0, ground.top, picture_size_.cx, ground.top + picture_size_.cy});
}

POINT ListAppearance::scroll_position() const {
    return {GetScrollPos(window_.handle(), SB_HORZ), GetScrollPos(window_.handle(), SB_VERT)};
}

void ListAppearance::message_passed(const WindowMessage& message) {
    if (!picture_)
        return;
    const POINT position = scroll_position();
    const bool scrolled = position.x != scrolled_.x || position.y != scrolled_.y;
    scrolled_ = position;
    if (scrolled || message.id == WM_NOTIFY)
        redraw(window_.handle());
}

} // namespace vellora::win32
