#include "pane.h"

#include "hosting/invocation.h"

#include <exception>

namespace vellora::samples {

namespace {

constexpr wchar_t class_name[] = L"VelloraContainer";

void register_class(WNDPROC procedure) {
    WNDCLASSW pane{};
    pane.style = CS_DBLCLKS;
    pane.lpfnWndProc = procedure;
    pane.hInstance = GetModuleHandleW(nullptr);
    pane.hIcon = LoadIconW(nullptr, IDI_APPLICATION);
    pane.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    pane.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    pane.lpszClassName = class_name;
    RegisterClassW(&pane); // fails when it is there already
}

void tell(HWND window, const std::wstring& problem) {
    SendMessageW(GetAncestor(window, GA_ROOT), problem_message, 0, reinterpret_cast<LPARAM>(&problem));
}

} // namespace

Pane::Pane(HWND parent, DWORD style, DWORD extended, HMENU menu) {
    register_class(procedure);
    const int position = parent ? 0 : CW_USEDEFAULT;
    window_ = CreateWindowExW(extended, class_name, L"", style, position, position, position, position, parent, menu,
                              GetModuleHandleW(nullptr), nullptr);
    if (!window_)
        throw Failure(L"There are no more windows to be had.");
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

Pane::~Pane() {
    if (!window_)
        return;
    SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
    DestroyWindow(window_);
}

RECT Pane::inside() const {
    RECT result{};
    GetClientRect(window_, &result);
    return result;
}

LRESULT Pane::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    return DefWindowProcW(window_, message, wparam, lparam);
}

LRESULT CALLBACK Pane::procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept {
    auto* pane = reinterpret_cast<Pane*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    try {
        if (pane && message == WM_NCDESTROY) {
            pane->window_ = nullptr;
            SetWindowLongPtrW(window, GWLP_USERDATA, 0);
        } else if (pane) {
            return pane->handle(message, wparam, lparam);
        }
    } catch (const Failure& failure) {
        tell(window, sentence(failure));
        return 0;
    } catch (const std::exception&) {
        tell(window, L"There is not enough memory.");
        return 0;
    }
    return DefWindowProcW(window, message, wparam, lparam);
}

} // namespace vellora::samples
