// A list view in report form: its columns and the texts of its cells.
#pragma once

#include "screen.h"

#include <commctrl.h>
#include <string>

namespace vellora::samples {

/// `width` in pixels.
inline void add_column(HWND list, int index, const wchar_t* caption, int width) {
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.pszText = const_cast<wchar_t*>(caption);
    column.cx = width;
    SendMessageW(list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&column));
}

/// A text in the first column makes a new row.
inline void set_cell(HWND list, int row, int column, const std::wstring& text) {
    LVITEMW item{};
    item.iItem = row;
    item.iSubItem = column;
    item.mask = LVIF_TEXT;
    item.pszText = const_cast<wchar_t*>(text.c_str());
    SendMessageW(list, column == 0 ? LVM_INSERTITEMW : LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
}

inline std::wstring cell(HWND list, int row, int column) {
    wchar_t text[260] = L"";
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = text;
    item.cchTextMax = ARRAYSIZE(text);
    SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    return text;
}

inline void choose_row(HWND list, int row) {
    ListView_SetItemState(list, row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    ListView_EnsureVisible(list, row, FALSE);
}

inline int chosen_row(HWND list) {
    return ListView_GetNextItem(list, -1, LVNI_SELECTED);
}

} // namespace vellora::samples
