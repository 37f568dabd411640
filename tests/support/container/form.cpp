#include "support/container/form.h"

#include <utility>

namespace vellora::test {
namespace {

constexpr wchar_t class_name[] = L"VelloraTestForm";

Form* form_of(HWND window) {
    return reinterpret_cast<Form*>(GetWindowLongPtrW(window, GWLP_USERDATA));
}

DWORD style_of(const Form::Look& look) {
    return WS_CLIPCHILDREN | (look.bare ? WS_POPUP : WS_OVERLAPPEDWINDOW);
}

// A window that holds the focus between two forms: the focus of a destroyed window would come back to us
// through the window manager, late, and be taken from the next form.
HWND resting_window() {
    static const HWND window = [] {
        HWND created = CreateWindowExW(WS_EX_TOOLWINDOW, L"Button", nullptr, WS_POPUP, 0, 0, 1, 1, nullptr,
                                       nullptr, GetModuleHandleW(nullptr), nullptr);
        ShowWindow(created, SW_SHOWNOACTIVATE);
        return created;
    }();
    return window;
}

int width_of(const RECT& rect) {
    return rect.right - rect.left;
}
int height_of(const RECT& rect) {
    return rect.bottom - rect.top;
}

} // namespace

Form::Form(const Look& look) : kind_(look.kind), bare_(look.bare) {
    register_class();
    if (kind_ == Kind::dialog)
        create_dialog(look);
    else if (kind_ == Kind::mdi_child)
        create_mdi(look);
    else
        create(look);
    if (look.visible)
        show(look);
}

Form::~Form() {
    destroy();
}

void Form::show(const Look& look) const {
    if (look.bare)
        resting_window();
    ShowWindow(frame(), look.bare ? SW_SHOWNOACTIVATE : SW_SHOWNORMAL);
    SetForegroundWindow(frame());
}

void Form::destroy() {
    active_object_.Reset();
    if (HWND window = frame()) {
        if (bare_)
            SetForegroundWindow(resting_window());
        DestroyWindow(window);
    }
    window_ = client_ = frame_ = nullptr;
}

void Form::register_class() const {
    WNDCLASSW form{};
    form.lpfnWndProc = procedure;
    form.hInstance = GetModuleHandleW(nullptr);
    form.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    form.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    form.lpszClassName = class_name;
    RegisterClassW(&form);
}

void Form::create(const Look& look) {
    window_ = CreateWindowExW(0, class_name, look.title.c_str(), style_of(look), look.place.left,
                              look.place.top, width_of(look.place), height_of(look.place), nullptr, nullptr,
                              GetModuleHandleW(nullptr), this);
}

void Form::create_dialog(const Look& look) {
    struct {
        DLGTEMPLATE dialog;
        WORD menu_class_title[3];
    } empty{};
    empty.dialog.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;
    window_ = CreateDialogIndirectParamW(GetModuleHandleW(nullptr), &empty.dialog, nullptr, dialog_procedure,
                                         reinterpret_cast<LPARAM>(this));
    SetWindowTextW(window_, look.title.c_str());
    MoveWindow(window_, look.place.left, look.place.top, width_of(look.place), height_of(look.place), FALSE);
}

void Form::create_mdi(const Look& look) {
    frame_ = CreateWindowExW(0, class_name, look.title.c_str(), style_of(look), look.place.left,
                             look.place.top, width_of(look.place), height_of(look.place), nullptr, nullptr,
                             GetModuleHandleW(nullptr), this);
    CLIENTCREATESTRUCT client{nullptr, 1000};
    RECT inside;
    GetClientRect(frame_, &inside);
    client_ =
        CreateWindowExW(0, L"MDICLIENT", nullptr, WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, 0, 0, inside.right,
                        inside.bottom, frame_, nullptr, GetModuleHandleW(nullptr), &client);
    MDICREATESTRUCTW child{
        class_name,         look.title.c_str(), GetModuleHandleW(nullptr),     10, 10, inside.right - 40,
        inside.bottom - 40, WS_CLIPCHILDREN,    reinterpret_cast<LPARAM>(this)};
    window_ =
        reinterpret_cast<HWND>(SendMessageW(client_, WM_MDICREATE, 0, reinterpret_cast<LPARAM>(&child)));
}

LRESULT CALLBACK Form::procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept {
    if (message == WM_NCCREATE) {
        const auto* creation = reinterpret_cast<const CREATESTRUCTW*>(lparam);
        void* form = creation->lpCreateParams;
        if (creation->dwExStyle & WS_EX_MDICHILD)
            form = reinterpret_cast<void*>(static_cast<const MDICREATESTRUCTW*>(form)->lParam);
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(form));
    }
    Form* form = form_of(window);
    if (!form)
        return DefWindowProcW(window, message, wparam, lparam);
    form->see(window, message, wparam, lparam);
    return form->by_default(window, message, wparam, lparam);
}

INT_PTR CALLBACK Form::dialog_procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept {
    if (message == WM_INITDIALOG)
        SetWindowLongPtrW(window, GWLP_USERDATA, lparam);
    if (Form* form = form_of(window))
        form->see(window, message, wparam, lparam);
    return FALSE;
}

void Form::see(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_NCACTIVATE) {
        captions_.push_back((window == frame_ ? "frame " : "form ") + std::to_string(wparam) + ' ' +
                            std::to_string(lparam));
        if (window == frame())
            caption_active_ = wparam != 0;
    }
    if (message == WM_NCDESTROY && window == window_)
        window_ = nullptr;
    if (window == window_)
        keep_focus(message, wparam);
    if (watcher_ && (window == window_ || message == WM_CLOSE))
        watcher_(message, wparam, lparam);
}

// A form has no use for the focus itself: whoever had it gets it back.
void Form::keep_focus(UINT message, WPARAM wparam) {
    if (message == WM_ACTIVATE && LOWORD(wparam) == WA_INACTIVE && IsChild(window_, GetFocus()))
        focus_ = GetFocus();
    if (message == WM_SETFOCUS && focus_ && IsWindowVisible(focus_) && IsChild(window_, focus_))
        SetFocus(focus_);
}

LRESULT Form::by_default(HWND window, UINT message, WPARAM wparam, LPARAM lparam) const {
    if (window == frame_)
        return DefFrameProcW(window, client_, message, wparam, lparam);
    return frame_ ? DefMDIChildProcW(window, message, wparam, lparam)
                  : DefWindowProcW(window, message, wparam, lparam);
}

bool Form::translate(MSG& message) const {
    const bool key = message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST;
    const Microsoft::WRL::ComPtr<IOleInPlaceActiveObject> active = active_object_;
    if (key && active && active->TranslateAccelerator(&message) == S_OK)
        return true;
    if (client_ && TranslateMDISysAccel(client_, &message))
        return true;
    return kind_ == Kind::dialog && window_ && IsDialogMessageW(window_, &message);
}

void Form::pump() const {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (translate(message))
            continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

} // namespace vellora::test
