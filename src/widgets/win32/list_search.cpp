#include "widgets/win32/list_search.h"

#include "widgets/win32/list_cell_text.h"

#include <algorithm>

namespace vellora::win32 {

namespace {

// Newer platforms take this for another name of LVFI_PARTIAL.
constexpr UINT find_substring = 0x4;
constexpr UINT text_flags = LVFI_STRING | LVFI_PARTIAL | find_substring;
constexpr UINT partial_flags = LVFI_PARTIAL | find_substring;
constexpr UINT other_criteria = LVFI_PARAM | LVFI_NEARESTXY;

template <typename Search>
std::int32_t search_text(const ListRows& rows, const Search& search, std::int32_t start) {
    if (!(search.flags & text_flags) || (search.flags & other_criteria))
        return -1;
    const std::u16string target = text_of(search.psz);
    const bool partial = (search.flags & partial_flags) != 0;
    const std::int32_t first = std::max(start, 0);
    std::int32_t found = -1;
    if (first < rows.count())
        found = rows.find(target, FindWhere::text, first, partial);
    if (found == -1 && first > 0 && (search.flags & LVFI_WRAP))
        found = rows.find(target, FindWhere::text, 0, partial);
    return found;
}

} // namespace

std::int32_t search_rows(const ListRows& rows, const LVFINDINFOW& search, std::int32_t start) {
    return search_text(rows, search, start);
}

std::int32_t search_rows(const ListRows& rows, const LVFINDINFOA& search, std::int32_t start) {
    return search_text(rows, search, start);
}

} // namespace vellora::win32
