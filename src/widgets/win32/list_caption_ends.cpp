#include "widgets/win32/list_caption_ends.h"

#include "widgets/win32/list_cell_text.h"
#include "widgets/win32/wide_text.h"

#include <uxtheme.h>
#include <vssym32.h>

namespace vellora::win32 {

namespace {

constexpr UINT caption_format = DT_LEFT | DT_VCENTER | DT_SINGLELINE;
constexpr int pressed_offset = 2;

int cut_at(HDC dc, std::u16string_view text) {
    RECT place{};
    DrawTextW(dc, wide(text.data()), static_cast<int>(text.size()), &place, caption_format | DT_CALCRECT);
    return static_cast<int>(place.right);
}

void draw(HDC dc, HTHEME theme, std::u16string_view text, RECT place) {
    const auto length = static_cast<int>(text.size());
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GetSysColor(COLOR_BTNTEXT));
    if (theme)
        DrawThemeText(theme, dc, HP_HEADERITEM, HIS_NORMAL, wide(text.data()), length, caption_format, 0, &place);
    else
        DrawTextW(dc, wide(text.data()), length, &place, caption_format);
}

} // namespace

std::optional<LRESULT> ListCaptionEnds::answer(const WindowMessage& message) {
    const auto* const header = message.id == WM_NOTIFY ? structure_at<NMHDR>(message.lparam) : nullptr;
    if (!header || static_cast<UINT>(header->code) != NM_CUSTOMDRAW || header->hwndFrom != window_.header())
        return std::nullopt;
    const LRESULT result = window_.native(message);
    const auto& drawing = *reinterpret_cast<const NMCUSTOMDRAW*>(header);
    note(drawing);
    if (drawing.dwDrawStage != CDDS_POSTPAINT)
        return drawing.dwDrawStage == CDDS_PREPAINT ? result | CDRF_NOTIFYITEMDRAW | CDRF_NOTIFYPOSTPAINT : result;
    complete(drawing);
    return CDRF_SKIPDEFAULT;
}

void ListCaptionEnds::note(const NMCUSTOMDRAW& drawing) {
    if (drawing.dwDrawStage == CDDS_PREPAINT)
        pressed_ = -1;
    else if (drawing.dwDrawStage == CDDS_ITEMPREPAINT && (drawing.uItemState & CDIS_SELECTED))
        pressed_ = static_cast<std::int32_t>(drawing.dwItemSpec);
}

void ListCaptionEnds::complete(const NMCUSTOMDRAW& drawing) const {
    const auto font = reinterpret_cast<HFONT>(SendMessageW(window_.header(), WM_GETFONT, 0, 0));
    const TextMeasure measure = widths_.text_measure();
    const SavedDc saved(drawing.hdc);
    SelectObject(drawing.hdc, font);
    for (std::int32_t column = 0; column < headers_.count(); ++column)
        complete(drawing.hdc, column, measure);
}

void ListCaptionEnds::complete(HDC dc, std::int32_t column, const TextMeasure& measure) const {
    const std::u16string& text = headers_.text(column);
    if (measure.width(text) <= measure.extent(text))
        return;
    const int end = cut_at(dc, text);
    const RECT place = text_place(dc, column);
    // A caption that does not fit ends in dots.
    if (end > place.right - place.left)
        return;
    const SavedDc saved(dc);
    IntersectClipRect(dc, place.left + end, place.top, place.right, place.bottom);
    draw(dc, GetWindowTheme(window_.header()), text, place);
}

RECT ListCaptionEnds::text_place(HDC dc, std::int32_t column) const {
    RECT place{};
    const HWND header = window_.header();
    SendMessageW(header, HDM_GETITEMRECT, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&place));
    if (const HTHEME theme = GetWindowTheme(header))
        GetThemeBackgroundContentRect(theme, dc, HP_HEADERITEM, HIS_NORMAL, &place, &place);
    else
        InflateRect(&place, -GetSystemMetrics(SM_CXEDGE), -GetSystemMetrics(SM_CYEDGE));
    if (column == pressed_) {
        place.left += pressed_offset;
        place.top += pressed_offset;
    }
    const auto margin = static_cast<LONG>(SendMessageW(header, HDM_GETBITMAPMARGIN, 0, 0));
    place.left += margin + widths_.icon_width(column);
    place.right -= margin;
    return place;
}

} // namespace vellora::win32
