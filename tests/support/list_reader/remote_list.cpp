#include "support/list_reader/remote_list.h"

#include <stdexcept>

namespace vellora::test {

namespace {

RECT on_screen(HWND window, RECT rect) {
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

} // namespace

RemoteList::RemoteList(HWND list) : list_(list) {
    DWORD id = 0;
    GetWindowThreadProcessId(list, &id);
    process_ = OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, id);
    memory_ = static_cast<char*>(VirtualAllocEx(process_, nullptr, 4096, MEM_COMMIT, PAGE_READWRITE));
    if (!memory_)
        throw std::runtime_error("no memory in the process of the list");
}

RemoteList::~RemoteList() {
    VirtualFreeEx(process_, memory_, 0, MEM_RELEASE);
    CloseHandle(process_);
}

template <class Structure>
LRESULT RemoteList::send(HWND window, UINT message, WPARAM wparam, Structure& structure) const {
    WriteProcessMemory(process_, memory_, &structure, sizeof structure, nullptr);
    const LRESULT result = SendMessageW(window, message, wparam, reinterpret_cast<LPARAM>(memory_));
    ReadProcessMemory(process_, memory_, &structure, sizeof structure, nullptr);
    return result;
}

std::wstring RemoteList::text_there() const {
    wchar_t text[capacity] = {};
    ReadProcessMemory(process_, memory_ + text_offset, text, sizeof text - sizeof *text, nullptr);
    return text;
}

int RemoteList::next(int row, UINT state) const {
    return static_cast<int>(SendMessageW(list_, LVM_GETNEXTITEM, static_cast<WPARAM>(row), MAKELPARAM(state, 0)));
}

UINT RemoteList::state(int row) const {
    return static_cast<UINT>(SendMessageW(list_, LVM_GETITEMSTATE, static_cast<WPARAM>(row), static_cast<LPARAM>(~0U)));
}

std::wstring RemoteList::text(int row, int column) const {
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = reinterpret_cast<wchar_t*>(memory_ + text_offset);
    item.cchTextMax = capacity;
    return send(list_, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), item) > 0 ? text_there() : std::wstring();
}

std::wstring RemoteList::caption(int column) const {
    HDITEMW item{};
    item.mask = HDI_TEXT;
    item.pszText = reinterpret_cast<wchar_t*>(memory_ + text_offset);
    item.cchTextMax = capacity;
    return send(header(), HDM_GETITEMW, static_cast<WPARAM>(column), item) ? text_there() : std::wstring();
}

RECT RemoteList::row_rect(int row) const {
    RECT rect{LVIR_BOUNDS, 0, 0, 0};
    send(list_, LVM_GETITEMRECT, static_cast<WPARAM>(row), rect);
    return on_screen(list_, rect);
}

RECT RemoteList::cell_rect(int row, int column) const {
    RECT rect{LVIR_BOUNDS, column, 0, 0};
    send(list_, LVM_GETSUBITEMRECT, static_cast<WPARAM>(row), rect);
    return on_screen(list_, rect);
}

RECT RemoteList::header_rect(int column) const {
    RECT rect{};
    send(header(), HDM_GETITEMRECT, static_cast<WPARAM>(column), rect);
    return on_screen(header(), rect);
}

std::vector<int> RemoteList::order() const {
    int columns_there[50] = {};
    const int count = columns();
    send(list_, LVM_GETCOLUMNORDERARRAY, static_cast<WPARAM>(count), columns_there);
    return {columns_there, columns_there + count};
}

} // namespace vellora::test
