#include "plain_form.h"

#include "failure.h"
#include "sample.h"
#include "screen.h"

namespace vellora::samples {

namespace {

constexpr wchar_t class_name[] = L"VelloraSample";

void register_class(WNDPROC procedure) {
    WNDCLASSW form{};
    form.lpfnWndProc = procedure;
    form.hInstance = GetModuleHandleW(nullptr);
    form.hIcon = LoadIconW(nullptr, IDI_APPLICATION);
    form.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    form.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    form.lpszClassName = class_name;
    RegisterClassW(&form);
}

} // namespace

PlainForm::PlainForm(const wchar_t* title, SIZE client) {
    constexpr DWORD style = (WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN) & ~WS_THICKFRAME & ~WS_MAXIMIZEBOX;
    register_class(procedure);
    RECT outer{0, 0, scaled(client.cx), scaled(client.cy)};
    AdjustWindowRect(&outer, style, FALSE);
    window_ = CreateWindowExW(WS_EX_CONTROLPARENT, class_name, title, style, CW_USEDEFAULT, CW_USEDEFAULT,
                              outer.right - outer.left, outer.bottom - outer.top, nullptr, nullptr,
                              GetModuleHandleW(nullptr), nullptr);
    if (!window_)
        throw Failure(L"The form's window cannot be made.");
    controls_.emplace(window_);
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

PlainForm::~PlainForm() {
    controls_->release();
    if (window_)
        DestroyWindow(window_);
}

void PlainForm::show() const {
    ShowWindow(window_, SW_SHOWNORMAL);
    UpdateWindow(window_);
}

void PlainForm::run() {
    show();
    run_messages([this](MSG& message) { return takes(message); });
}

LRESULT CALLBACK PlainForm::procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept {
    auto* form = reinterpret_cast<PlainForm*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    try {
        if (form)
            form->handle(message, wparam, lparam);
    } catch (...) {
        // Exceptions must not reach the system. What failed is left undone.
    }
    return DefWindowProcW(window, message, wparam, lparam);
}

void PlainForm::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    controls_->window_heard(message, wparam);
    switch (message) {
    case WM_COMMAND:
        notified(LOWORD(wparam), HIWORD(wparam));
        break;
    case WM_NOTIFY: {
        const auto& header = *reinterpret_cast<const NMHDR*>(lparam);
        notified(static_cast<int>(header.idFrom), static_cast<int>(header.code));
        break;
    }
    case WM_DESTROY:
        PostQuitMessage(0);
        break;
    case WM_NCDESTROY:
        window_ = nullptr;
        break;
    }
}

void PlainForm::notified(int id, int notice) const {
    if (on_notice_)
        on_notice_(id, notice);
}

} // namespace vellora::samples
