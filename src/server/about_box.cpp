#include "server/about_box.h"

#include "com/bstr.h"
#include "com/guard.h"
#include "com/type_library.h"
#include "server/about_dialog.h"
#include "server/module.h"
#include "widgets/win32/handles.h"

namespace vellora::server {

namespace {

struct Box {
    const AboutTexts& texts;
    win32::UniqueGdiFont title_font;
    win32::UniqueBitmap picture;
    bool shown = false;
};

// Half as large again as the other texts, and bold.
win32::UniqueGdiFont title_font(HWND dialog) {
    LOGFONTW font{};
    GetObjectW(reinterpret_cast<HFONT>(SendMessageW(dialog, WM_GETFONT, 0, 0)), sizeof font, &font);
    font.lfHeight = MulDiv(font.lfHeight, 3, 2);
    font.lfWeight = FW_BOLD;
    return win32::UniqueGdiFont(CreateFontIndirectW(&font));
}

// The one of the tool boxes, in whole multiples of its size, with the dialog's own grey around it.
win32::UniqueBitmap picture() {
    constexpr int drawn_size = 16;
    const int size = GetSystemMetrics(SM_CXICON) / drawn_size * drawn_size;
    const HANDLE bitmap = LoadImageW(com::module_instance(), MAKEINTRESOURCEW(module().toolbox_bitmap),
                                     IMAGE_BITMAP, size, size, LR_LOADMAP3DCOLORS);
    return win32::UniqueBitmap(static_cast<HBITMAP>(bitmap));
}

void fill(HWND dialog, Box& box) noexcept {
    box.shown = true;
    box.title_font = title_font(dialog);
    SendDlgItemMessageW(dialog, VELLORA_ABOUT_TITLE, WM_SETFONT,
                        reinterpret_cast<WPARAM>(box.title_font.get()), FALSE);
    box.picture = picture();
    SendDlgItemMessageW(dialog, VELLORA_ABOUT_PICTURE, STM_SETIMAGE, IMAGE_BITMAP,
                        reinterpret_cast<LPARAM>(box.picture.get()));
    SetWindowTextW(dialog, com::wide(box.texts.caption.c_str()));
    SetDlgItemTextW(dialog, VELLORA_ABOUT_TITLE, com::wide(box.texts.title.c_str()));
    SetDlgItemTextW(dialog, VELLORA_ABOUT_VERSION, com::wide(box.texts.version.c_str()));
}

INT_PTR CALLBACK procedure(HWND dialog, UINT message, WPARAM wparam, LPARAM lparam) noexcept {
    if (message == WM_INITDIALOG) {
        fill(dialog, *reinterpret_cast<Box*>(lparam));
        return TRUE;
    }
    if (message == WM_COMMAND && (LOWORD(wparam) == IDOK || LOWORD(wparam) == IDCANCEL)) {
        EndDialog(dialog, LOWORD(wparam));
        return TRUE;
    }
    return FALSE;
}

HWND owner_over(HWND form) {
    const HWND window = form ? GetAncestor(form, GA_ROOT) : GetActiveWindow();
    return window && !IsWindowEnabled(window) ? GetLastActivePopup(window) : window;
}

} // namespace

void show_about_box(HWND form, const AboutTexts& texts) {
    Box box{texts, nullptr, nullptr};
    DialogBoxParamW(com::module_instance(), MAKEINTRESOURCEW(VELLORA_ABOUT_DIALOG), owner_over(form),
                    procedure, reinterpret_cast<LPARAM>(&box));
    if (!box.shown) {
        throw com::ComFailure(HRESULT_FROM_WIN32(GetLastError()));
    }
}

} // namespace vellora::server
