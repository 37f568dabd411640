#include "support/container/pictures.h"

#include <algorithm>
#include <olectl.h>

namespace vellora::test {
namespace {

using Microsoft::WRL::ComPtr;

constexpr COLORREF light = RGB(255, 240, 160), lighter = RGB(200, 230, 255), dark = RGB(0, 80, 0);
constexpr int square = 8;

void fill(HDC dc, const RECT& area, COLORREF color) {
    HBRUSH brush = CreateSolidBrush(color);
    FillRect(dc, &area, brush);
    DeleteObject(brush);
}

void draw_pattern(HDC dc, SIZE size) {
    fill(dc, {0, 0, size.cx, size.cy}, dark);
    for (LONG y = 1; y < size.cy - 1; y += square)
        for (LONG x = 1; x < size.cx - 1; x += square)
            fill(dc, {x, y, std::min(x + square, size.cx - 1), std::min(y + square, size.cy - 1)},
                 (x / square + y / square) % 2 ? light : lighter);
}

HBITMAP pattern_bitmap(SIZE size) {
    HDC screen = GetDC(nullptr);
    HDC dc = CreateCompatibleDC(screen);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, size.cx, size.cy);
    ReleaseDC(nullptr, screen);
    HGDIOBJ before = SelectObject(dc, bitmap);
    draw_pattern(dc, size);
    SelectObject(dc, before);
    DeleteDC(dc);
    return bitmap;
}

HICON pattern_icon() {
    const SIZE size{GetSystemMetrics(SM_CXICON), GetSystemMetrics(SM_CYICON)};
    ICONINFO icon{TRUE, 0, 0, CreateBitmap(size.cx, size.cy, 1, 1, nullptr), pattern_bitmap(size)};
    HDC mask = CreateCompatibleDC(nullptr);
    HGDIOBJ before = SelectObject(mask, icon.hbmMask);
    PatBlt(mask, 0, 0, size.cx, size.cy, BLACKNESS);
    SelectObject(mask, before);
    DeleteDC(mask);
    HICON result = CreateIconIndirect(&icon);
    DeleteObject(icon.hbmMask);
    DeleteObject(icon.hbmColor);
    return result;
}

// In units of its own, as metafiles are that programs place.
HMETAFILE pattern_metafile(SIZE size) {
    HDC dc = CreateMetaFileW(nullptr);
    SetMapMode(dc, MM_ANISOTROPIC);
    SetWindowOrgEx(dc, 0, 0, nullptr);
    SetWindowExtEx(dc, size.cx, size.cy, nullptr);
    draw_pattern(dc, size);
    return CloseMetaFile(dc);
}

int himetric(LONG pixels, int resolution) {
    HDC screen = GetDC(nullptr);
    const int result = MulDiv(pixels, 2540, GetDeviceCaps(screen, resolution));
    ReleaseDC(nullptr, screen);
    return result;
}

PICTDESC describe(const std::string& kind, SIZE size) {
    PICTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.picType = static_cast<UINT>(PICTYPE_UNINITIALIZED);
    if (kind == "bitmap") {
        description.picType = PICTYPE_BITMAP;
        description.bmp.hbitmap = pattern_bitmap(size);
    } else if (kind == "icon") {
        description.picType = PICTYPE_ICON;
        description.icon.hicon = pattern_icon();
    } else if (kind == "metafile") {
        description.picType = PICTYPE_METAFILE;
        description.wmf = {pattern_metafile(size), himetric(size.cx, LOGPIXELSX),
                           himetric(size.cy, LOGPIXELSY)};
    }
    return description;
}

ComPtr<IDispatch> picture_of(PICTDESC description) {
    ComPtr<IPictureDisp> picture;
    if (description.picType != static_cast<UINT>(PICTYPE_UNINITIALIZED))
        OleCreatePictureIndirect(&description, IID_IPictureDisp, TRUE,
                                 reinterpret_cast<void**>(picture.GetAddressOf()));
    return picture;
}

} // namespace

ComPtr<IDispatch> make_picture(const std::string& kind, SIZE pixels) {
    return picture_of(describe(kind, pixels));
}

ComPtr<IDispatch> load_picture(const std::wstring& path) {
    PICTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.bmp.hbitmap =
        static_cast<HBITMAP>(LoadImageW(nullptr, path.c_str(), IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE));
    description.picType = static_cast<UINT>(description.bmp.hbitmap ? PICTYPE_BITMAP : PICTYPE_UNINITIALIZED);
    return picture_of(description);
}

} // namespace vellora::test
