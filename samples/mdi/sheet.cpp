#include "sheet.h"

#include "hosting/bstr.h"
#include "hosting/failure.h"
#include "hosting/screen.h"
#include "hosting/text_array.h"

namespace vellora::samples {

namespace {

constexpr wchar_t class_name[] = L"VelloraSheet";

} // namespace

Sheet::Sheet(const ControlFactory& factory, HWND frame, HWND client, const wchar_t* title)
    : control_(factory.create()) {
    create_window(client, title);
    controls_.emplace(window_, frame);
    controls_->add(control_.Get(), title, scaled(RECT{12, 12, 212, 34}));
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    fill();
}

Sheet::~Sheet() {
    controls_->release();
    if (window_)
        SendMessageW(GetParent(window_), WM_MDIDESTROY, reinterpret_cast<WPARAM>(window_), 0);
}

void Sheet::create_window(HWND client, const wchar_t* title) {
    WNDCLASSW sheet{};
    sheet.lpfnWndProc = procedure;
    sheet.hInstance = GetModuleHandleW(nullptr);
    sheet.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    sheet.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    sheet.lpszClassName = class_name;
    RegisterClassW(&sheet);
    window_ = CreateWindowExW(WS_EX_MDICHILD | WS_EX_CONTROLPARENT, class_name, title, WS_CLIPCHILDREN | WS_VISIBLE,
                              CW_USEDEFAULT, CW_USEDEFAULT, scaled(250), scaled(120), client, nullptr, sheet.hInstance,
                              nullptr);
    if (!window_)
        throw Failure(L"A window inside the frame cannot be made.");
}

void Sheet::fill() const {
    // A new control shows its name.
    check(control_->put_Text(Bstr(L"").get()), L"Emptying the text field");
    const TextRows rows = {{L"New Zealand"}, {L"Norway"}, {L"Peru"}, {L"Switzerland"}};
    check(control_->put_List(0, -3, TextArray(rows).get()), L"Filling the list");
}

LRESULT CALLBACK Sheet::procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept {
    auto* sheet = reinterpret_cast<Sheet*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    try {
        if (sheet)
            sheet->handle(message, wparam, lparam);
    } catch (...) {
        // Exceptions must not reach the system. What failed is left undone.
    }
    return DefMDIChildProcW(window, message, wparam, lparam);
}

void Sheet::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    // An MDI child is activated by a message of its own. The one that is left lets its control rest.
    if (message == WM_MDIACTIVATE) {
        const bool active = reinterpret_cast<HWND>(lparam) == window_;
        frame_activated(active);
        if (active)
            SetFocus(window_); // also when an open list has it, which the system would leave there
        else
            controls_->deactivate_current();
    } else if (message != WM_ACTIVATE) {
        controls_->window_heard(message, wparam);
    }
    if (message == WM_NCDESTROY)
        window_ = nullptr;
}

} // namespace vellora::samples
