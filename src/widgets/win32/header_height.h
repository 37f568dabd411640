// A list's header that is tall enough for its icons. Not every version of the platform makes room for them by
// itself.
#pragma once

#include "widgets/win32/list_window.h"

namespace vellora::win32 {

class HeaderHeight {
public:
    explicit HeaderHeight(const ListWindow& window) : window_(window) {}
    ~HeaderHeight();
    HeaderHeight(const HeaderHeight&) = delete;
    HeaderHeight& operator=(const HeaderHeight&) = delete;

    /// Pixels; 0 leaves the header the height it has by itself. A hidden header stays hidden.
    void require(int pixels);

private:
    static LRESULT CALLBACK procedure(HWND header, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR id,
                                      DWORD_PTR self) noexcept;
    void grow(const HDLAYOUT& layout) const;
    void lay_out() const;

    const ListWindow& window_;
    HWND header_ = nullptr;
    int required_ = 0;
};

} // namespace vellora::win32
