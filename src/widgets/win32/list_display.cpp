#include "widgets/win32/list_display.h"

#include "widgets/win32/list_cell_text.h"
#include "widgets/win32/list_search.h"
#include "widgets/win32/wide_text.h"

namespace vellora::win32 {

namespace {

constexpr UINT unchecked_image = 1;
constexpr UINT checked_image = 2;

template <typename Target>
Target& as(NMHDR& header) {
    return *reinterpret_cast<Target*>(&header);
}

} // namespace

UINT check_state(const ListRows& rows, std::int32_t row) {
    return INDEXTOSTATEIMAGEMASK(rows.checked(row) ? checked_image : unchecked_image);
}

std::optional<LRESULT> ListDisplay::answer(NMHDR& header) const {
    switch (static_cast<UINT>(header.code)) {
    case LVN_GETDISPINFOW:
        return display_info(as<NMLVDISPINFOW>(header));
    case LVN_GETDISPINFOA:
        return display_info(as<NMLVDISPINFOA>(header));
    case LVN_ODFINDITEMW: {
        const auto& search = as<NMLVFINDITEMW>(header);
        return search_rows(rows_, search.lvfi, search.iStart);
    }
    case LVN_ODFINDITEMA: {
        const auto& search = as<NMLVFINDITEMA>(header);
        return search_rows(rows_, search.lvfi, search.iStart);
    }
    default:
        return std::nullopt;
    }
}

template <typename DisplayInfo>
LRESULT ListDisplay::display_info(DisplayInfo& info) const {
    auto& item = info.item;
    if (item.mask & LVIF_TEXT)
        point_at(cell_text(rows_, item.iItem, item.iSubItem), item);
    if (item.mask & LVIF_IMAGE)
        item.iImage = I_IMAGENONE;
    if ((item.mask & LVIF_STATE) && item.iSubItem == 0 && has_row(rows_, item.iItem))
        item.state = (item.state & ~static_cast<UINT>(LVIS_STATEIMAGEMASK)) | check_state(rows_, item.iItem);
    return 0;
}

// The texts of the rows end with a zero, and stay where they are until the rows change.
void ListDisplay::point_at(std::u16string_view text, LVITEMW& item) {
    item.pszText = const_cast<wchar_t*>(wide(text.data()));
}

void ListDisplay::point_at(std::u16string_view text, LVITEMA& item) {
    copy_text(text, item.pszText, item.cchTextMax);
}

} // namespace vellora::win32
