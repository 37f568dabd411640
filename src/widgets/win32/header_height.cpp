#include "widgets/win32/header_height.h"

namespace vellora::win32 {

HeaderHeight::~HeaderHeight() {
    if (header_)
        RemoveWindowSubclass(header_, procedure, reinterpret_cast<UINT_PTR>(this));
}

void HeaderHeight::require(int pixels) {
    if (pixels == required_ && (header_ || pixels == 0))
        return;
    const HWND header = window_.header();
    if (!header_ && header &&
        SetWindowSubclass(header, procedure, reinterpret_cast<UINT_PTR>(this),
                          reinterpret_cast<DWORD_PTR>(this)))
        header_ = header;
    required_ = pixels;
    lay_out();
}

LRESULT CALLBACK HeaderHeight::procedure(HWND header, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR id,
                                         DWORD_PTR self) noexcept {
    auto* const height = reinterpret_cast<HeaderHeight*>(self);
    if (message == WM_NCDESTROY) {
        height->header_ = nullptr;
        RemoveWindowSubclass(header, procedure, id);
    }
    const LRESULT result = DefSubclassProc(header, message, wparam, lparam);
    if (message == HDM_LAYOUT && result && lparam)
        height->grow(*reinterpret_cast<const HDLAYOUT*>(lparam));
    return result;
}

void HeaderHeight::grow(const HDLAYOUT& layout) const {
    const int missing = required_ - layout.pwpos->cy;
    if (layout.pwpos->cy > 0 && missing > 0) {
        layout.pwpos->cy += missing;
        layout.prc->top += missing;
    }
}

// A list asks its header for its height when it has another size itself.
void HeaderHeight::lay_out() const {
    const RECT area = window_.client_area();
    window_.native(WM_SIZE, SIZE_RESTORED, MAKELPARAM(area.right, area.bottom));
}

} // namespace vellora::win32
