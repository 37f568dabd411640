// A list of another process, asked as assistive software asks one: by messages whose structures lie in the memory of
// that process.
#pragma once

#include <windows.h>

#include <commctrl.h>
#include <string>
#include <vector>

namespace vellora::test {

class RemoteList {
public:
    /// Throws std::runtime_error when the process cannot be opened.
    explicit RemoteList(HWND list);
    ~RemoteList();
    RemoteList(const RemoteList&) = delete;
    RemoteList& operator=(const RemoteList&) = delete;

    HWND window() const { return list_; }
    HWND header() const { return reinterpret_cast<HWND>(SendMessageW(list_, LVM_GETHEADER, 0, 0)); }
    int rows() const { return static_cast<int>(SendMessageW(list_, LVM_GETITEMCOUNT, 0, 0)); }
    int columns() const { return static_cast<int>(SendMessageW(header(), HDM_GETITEMCOUNT, 0, 0)); }
    int next(int row, UINT state) const;
    UINT state(int row) const;
    std::wstring text(int row, int column) const;
    std::wstring caption(int column) const;
    /// On the screen.
    RECT row_rect(int row) const;
    RECT cell_rect(int row, int column) const;
    RECT header_rect(int column) const;
    std::vector<int> order() const;

private:
    template <class Structure>
    LRESULT send(HWND window, UINT message, WPARAM wparam, Structure& structure) const;
    std::wstring text_there() const;

    static constexpr std::size_t text_offset = 1024;
    static constexpr int capacity = 260;

    HWND list_;
    HANDLE process_ = nullptr;
    char* memory_ = nullptr; // there
};

} // namespace vellora::test
