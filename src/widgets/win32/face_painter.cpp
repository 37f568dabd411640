#include "widgets/win32/face_painter.h"

#include "widgets/win32/handles.h"
#include "widgets/win32/ole_color.h"
#include "widgets/win32/visual_style.h"
#include "widgets/win32/wide_text.h"

#include <vssym32.h>

namespace vellora::win32 {

namespace {

constexpr int border = 2; // pixels of the sunken edge on each side

/// From the field's own pixels to the target's units.
class Scale {
public:
    Scale(const RECT& bounds, const SIZE& size) : bounds_(bounds), size_(size) {}

    int x(int pixels) const { return bounds_.left + width(pixels); }
    int y(int pixels) const { return bounds_.top + height(pixels); }
    int width(int pixels) const { return MulDiv(pixels, bounds_.right - bounds_.left, size_.cx); }
    int height(int pixels) const { return MulDiv(pixels, bounds_.bottom - bounds_.top, size_.cy); }
    RECT client_rect(const RECT& place) const {
        return {x(place.left + border), y(place.top + border), x(place.right + border),
                y(place.bottom + border)};
    }

private:
    RECT bounds_;
    SIZE size_;
};

void clip(HDC dc, const RECT& area) {
    IntersectClipRect(dc, area.left, area.top, area.right, area.bottom);
}

void fill(HDC dc, const RECT& area, OleColor color) {
    ColorBrush brush;
    FillRect(dc, &area, brush.get(color));
}

UniqueGdiFont scaled_font(HFONT font, const Scale& scale) {
    LOGFONTW description{};
    GetObjectW(font, sizeof description, &description);
    description.lfHeight = scale.height(description.lfHeight);
    description.lfWidth = scale.width(description.lfWidth);
    return UniqueGdiFont(CreateFontIndirectW(&description));
}

UINT text_align(TextAlignment alignment) {
    switch (alignment) {
    case TextAlignment::right:
        return TA_RIGHT;
    case TextAlignment::centered:
        return TA_CENTER;
    default:
        return TA_LEFT;
    }
}

// Alignment is left to the device context, as not every one of them can measure a text.
int anchor(const TextFace& face) {
    const int left = face.place.left + face.left_margin;
    const int right = face.place.right - face.right_margin;
    switch (face.alignment) {
    case TextAlignment::right:
        return right;
    case TextAlignment::centered:
        return (left + right) / 2;
    default:
        return left;
    }
}

void paint_text(HDC dc, const TextFace& face, const Scale& scale) {
    const UniqueGdiFont font = scaled_font(face.font, scale);
    const SavedDc saved(dc);
    const RECT place = scale.client_rect(face.place);
    fill(dc, place, face.back_color);
    clip(dc, place);
    SelectObject(dc, font.get());
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, face.enabled ? to_color_ref(face.fore_color) : GetSysColor(COLOR_GRAYTEXT));
    SetTextAlign(dc, text_align(face.alignment) | TA_TOP);
    ExtTextOutW(dc, scale.x(anchor(face) + border), scale.y(face.place.top + border), 0, nullptr,
                wide(face.text), static_cast<UINT>(face.text.size()), nullptr);
}

bool paint_themed_border(HDC dc, const RECT& outer, bool enabled) {
    const UniqueTheme theme = open_theme(VSCLASS_EDIT);
    const int state = enabled ? EPSN_NORMAL : EPSN_DISABLED;
    return theme &&
           SUCCEEDED(DrawThemeBackground(theme.get(), dc, EP_EDITBORDER_NOSCROLL, state, &outer, nullptr));
}

} // namespace

void paint_field_border(HDC dc, const RECT& outer, bool enabled) {
    const SavedDc saved(dc);
    ExcludeClipRect(dc, outer.left + border, outer.top + border, outer.right - border, outer.bottom - border);
    if (!paint_themed_border(dc, outer, enabled)) {
        RECT edge = outer;
        DrawEdge(dc, &edge, EDGE_SUNKEN, BF_RECT);
    }
}

void paint_field(HDC dc, const RECT& bounds, const FieldFace& face) {
    if (face.size.cx <= 0 || face.size.cy <= 0) {
        return;
    }
    const SavedDc saved(dc);
    const Scale scale(bounds, face.size);
    fill(dc, bounds, face.back_color);
    paint_field_border(dc, bounds, face.text_field.enabled);
    clip(dc, scale.client_rect({0, 0, face.size.cx - 2 * border, face.size.cy - 2 * border}));
    paint_text(dc, face.text_field, scale);
    paint_button(dc, scale.client_rect(face.button_place), face.button);
}

} // namespace vellora::win32
