#include "native_list.h"

#include <array>
#include <cwchar>

#include <commctrl.h>

namespace vellora::bench {

NativeList::NativeList()
    : frame_(CreateWindowExW(0, WC_STATICW, L"Native list", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 660, 100, 440,
                             300, nullptr, nullptr, nullptr, nullptr)),
      window_(CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_SINGLESEL, 0, 0,
                              400, 200, frame_, nullptr, nullptr, nullptr)) {
    for (int column = 0; column < columns; ++column) {
        LVCOLUMNW header{};
        header.mask = LVCF_WIDTH | LVCF_SUBITEM;
        header.cx = 100;
        header.iSubItem = column;
        SendMessageW(window_, LVM_INSERTCOLUMNW, static_cast<WPARAM>(column),
                     reinterpret_cast<LPARAM>(&header));
    }
}

NativeList::~NativeList() {
    DestroyWindow(frame_);
}

void NativeList::add(SampleRows& rows, int count) {
    SendMessageW(window_, WM_SETREDRAW, FALSE, 0);
    for (int row = 0; row < count; ++row) {
        auto& texts = rows.texts(static_cast<std::size_t>(row));
        LVITEMW item{};
        item.mask = LVIF_TEXT;
        item.iItem = row;
        item.pszText = texts[0].data();
        SendMessageW(window_, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
        for (int column = 1; column < columns; ++column)
            set_text(row, column, texts[static_cast<std::size_t>(column)]);
    }
    SendMessageW(window_, WM_SETREDRAW, TRUE, 0);
}

void NativeList::set_text(int row, int column, std::wstring& text) {
    LVITEMW item{};
    item.mask = LVIF_TEXT;
    item.iItem = row;
    item.iSubItem = column;
    item.pszText = text.data();
    SendMessageW(window_, LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
}

void NativeList::clear() {
    SendMessageW(window_, WM_SETREDRAW, FALSE, 0);
    SendMessageW(window_, LVM_DELETEALLITEMS, 0, 0);
    SendMessageW(window_, WM_SETREDRAW, TRUE, 0);
}

std::size_t NativeList::read(int count) {
    std::size_t units = 0;
    std::array<wchar_t, 260> text;
    for (int row = 0; row < count; ++row)
        for (int column = 0; column < columns; ++column) {
            LVITEMW item{};
            item.iSubItem = column;
            item.pszText = text.data();
            item.cchTextMax = static_cast<int>(text.size());
            units += static_cast<std::size_t>(SendMessageW(
                window_, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item)));
        }
    return units;
}

int NativeList::find(const std::wstring& text, bool partial) {
    LVFINDINFOW wanted{};
    wanted.flags = LVFI_STRING | (partial ? LVFI_PARTIAL : 0U);
    wanted.psz = text.c_str();
    return static_cast<int>(
        SendMessageW(window_, LVM_FINDITEMW, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&wanted)));
}

int NativeList::find_in_column(const std::wstring& text, int column) {
    const auto count = static_cast<int>(SendMessageW(window_, LVM_GETITEMCOUNT, 0, 0));
    std::array<wchar_t, 260> cell;
    for (int row = 0; row < count; ++row) {
        LVITEMW item{};
        item.iSubItem = column;
        item.pszText = cell.data();
        item.cchTextMax = static_cast<int>(cell.size());
        SendMessageW(window_, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
        if (text == cell.data())
            return row;
    }
    return -1;
}

} // namespace vellora::bench
