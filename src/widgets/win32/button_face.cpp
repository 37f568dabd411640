#include "widgets/win32/button_face.h"

#include "widgets/check_button.h"
#include "widgets/win32/handles.h"
#include "widgets/win32/ole_color.h"
#include "widgets/win32/visual_style.h"
#include "widgets/win32/wide_text.h"

#include <vssym32.h>

#include <algorithm>
#include <string_view>

namespace vellora::win32 {

namespace {

std::u16string_view glyph_of(const ButtonFace& face) {
    return face.caption.empty() ? down_arrow : std::u16string_view(face.caption);
}

bool has_system_colors(const ButtonFace& face) {
    return to_color_ref(face.fore_color) == GetSysColor(COLOR_BTNTEXT) &&
           to_color_ref(face.back_color) == GetSysColor(COLOR_BTNFACE);
}

bool points_up(const ButtonFace& face) {
    return glyph_of(face) == up_arrow;
}

int theme_state(const ButtonFace& face) {
    const bool up = points_up(face);
    if (!face.enabled) {
        return up ? int{ABS_UPDISABLED} : int{CBXS_DISABLED};
    }
    if (face.pressed) {
        return up ? int{ABS_UPPRESSED} : int{CBXS_PRESSED};
    }
    if (face.hot) {
        return up ? int{ABS_UPHOT} : int{CBXS_HOT};
    }
    return up ? int{ABS_UPNORMAL} : int{CBXS_NORMAL};
}

// No theme has a combo-box button that points upwards; the nearest thing is the button of a scroll bar.
bool paint_themed(HDC dc, const RECT& place, const ButtonFace& face) {
    const UniqueTheme theme = open_theme(points_up(face) ? VSCLASS_SCROLLBAR : VSCLASS_COMBOBOX);
    const int part = points_up(face) ? int{SBP_ARROWBTN} : int{CP_DROPDOWNBUTTON};
    return theme && SUCCEEDED(DrawThemeBackground(theme.get(), dc, part, theme_state(face), &place, nullptr));
}

void paint_classic(HDC dc, RECT place, const ButtonFace& face) {
    UINT state = points_up(face) ? DFCS_SCROLLUP : DFCS_SCROLLCOMBOBOX;
    if (face.pressed) {
        state |= DFCS_PUSHED;
    }
    if (!face.enabled) {
        state |= DFCS_INACTIVE;
    }
    DrawFrameControl(dc, &place, DFC_SCROLL, state);
}

// The size at which the arrow has the proportions of the platform's own.
UniqueGdiFont glyph_font(const RECT& place) {
    LOGFONTW font{};
    font.lfHeight = std::min(place.right - place.left, place.bottom - place.top) * 4 / 5;
    font.lfCharSet = SYMBOL_CHARSET;
    font.lfQuality = NONANTIALIASED_QUALITY; // as sharp as the platform draws its own
    constexpr std::wstring_view marlett = L"Marlett";
    marlett.copy(font.lfFaceName, marlett.size());
    return UniqueGdiFont(CreateFontIndirectW(&font));
}

void draw_glyph(HDC dc, RECT place, std::u16string_view glyph, COLORREF color) {
    SetTextColor(dc, color);
    DrawTextW(dc, wide(glyph.data()), static_cast<int>(glyph.size()), &place,
              DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}

void paint_glyph(HDC dc, RECT place, const ButtonFace& face) {
    const UniqueGdiFont font = glyph_font(place);
    const SavedDc saved(dc);
    SelectObject(dc, font.get());
    SetBkMode(dc, TRANSPARENT);
    if (!face.enabled) {
        RECT highlight = place;
        OffsetRect(&highlight, 1, 1);
        draw_glyph(dc, highlight, glyph_of(face), GetSysColor(COLOR_3DHILIGHT));
    }
    draw_glyph(dc, place, glyph_of(face),
               face.enabled ? to_color_ref(face.fore_color) : GetSysColor(COLOR_3DSHADOW));
}

void paint_colored(HDC dc, RECT place, const ButtonFace& face) {
    ColorBrush background;
    FillRect(dc, &place, background.get(face.back_color));
    DrawEdge(dc, &place, face.pressed ? EDGE_SUNKEN : EDGE_RAISED, BF_RECT);
    if (face.pressed) {
        OffsetRect(&place, 1, 1);
    }
    paint_glyph(dc, place, face);
}

} // namespace

void paint_button(HDC dc, const RECT& place, const ButtonFace& face) {
    if (!has_system_colors(face)) {
        paint_colored(dc, place, face);
    } else if (!paint_themed(dc, place, face)) {
        paint_classic(dc, place, face);
    }
}

} // namespace vellora::win32
