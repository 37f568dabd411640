#include "widgets/win32/label_peer.h"

#include "widgets/win32/screen_metrics.h"
#include "widgets/win32/wide_text.h"

#include <algorithm>

namespace vellora::win32 {

namespace {

constexpr float twips_per_point = 20;

UniqueGdiFont make_font(std::u16string_view face, float points) {
    LOGFONTW description{};
    description.lfHeight = -pixels_y(points * twips_per_point);
    description.lfCharSet = DEFAULT_CHARSET;
    const std::size_t length = std::min<std::size_t>(face.size(), LF_FACESIZE - 1);
    std::copy_n(wide(face.data()), length, description.lfFaceName);
    return UniqueGdiFont(CreateFontIndirectW(&description));
}

LPCWSTR cursor_name(std::int32_t pointer) {
    switch (pointer) {
    case mouse_pointer::size_north_south:
        return IDC_SIZENS;
    case mouse_pointer::size_northwest_southeast:
        return IDC_SIZENWSE;
    case mouse_pointer::size_west_east:
        return IDC_SIZEWE;
    default:
        return IDC_ARROW;
    }
}

} // namespace

LabelPeer::LabelPeer(FramePeer& frame) : frame_(frame) {
    frame_.add(*this);
}

LabelPeer::~LabelPeer() {
    frame_.remove(*this);
}

void LabelPeer::set_caption(std::u16string_view caption) {
    caption_ = caption;
    measure();
}

void LabelPeer::set_font(std::u16string_view face, float points) {
    font_ = make_font(face, points);
    measure();
}

void LabelPeer::set_fore_color(OleColor color) {
    fore_color_ = checked_color(color);
    frame_.repaint();
}

float LabelPeer::width() const {
    return twips_x(place_.right - place_.left);
}
float LabelPeer::height() const {
    return twips_y(place_.bottom - place_.top);
}

void LabelPeer::move(float left, float top) {
    OffsetRect(&place_, pixels_x(left) - place_.left, pixels_y(top) - place_.top);
    frame_.repaint();
}

void LabelPeer::measure() {
    const WindowDc dc(frame_.window_handle());
    const SavedDc saved(dc.get());
    if (font_) {
        SelectObject(dc.get(), font_.get());
    }
    SIZE extent{};
    GetTextExtentPoint32W(dc.get(), wide(caption_), static_cast<int>(caption_.size()), &extent);
    place_.right = place_.left + extent.cx;
    place_.bottom = place_.top + extent.cy;
    frame_.repaint();
}

void LabelPeer::paint(HDC dc) const {
    const SavedDc saved(dc);
    if (font_) {
        SelectObject(dc, font_.get());
    }
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, to_color_ref(fore_color_));
    TextOutW(dc, place_.left, place_.top, wide(caption_), static_cast<int>(caption_.size()));
}

bool LabelPeer::takes_mouse_at(POINT point) const {
    return PtInRect(&place_, point) != 0;
}

void LabelPeer::mouse_pressed(std::int16_t button) {
    if (listener_ != nullptr) {
        listener_->label_pressed(button);
    }
}

void LabelPeer::mouse_moved() {
    if (listener_ != nullptr) {
        listener_->label_mouse_moved();
    }
}

void LabelPeer::mouse_released() {
    if (listener_ != nullptr) {
        listener_->label_released();
    }
}

HCURSOR LabelPeer::cursor() const {
    return LoadCursorW(nullptr, cursor_name(pointer_));
}

} // namespace vellora::win32
