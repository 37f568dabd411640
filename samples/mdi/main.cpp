// An MDI form: a frame with two children and a control in each. Ctrl+F6 goes from one child to the other.
//
//     mdi.exe [--check]
#include "hosting/failure.h"
#include "hosting/sample.h"
#include "hosting/screen.h"
#include "hosting/user.h"
#include "sheet.h"

#include <memory>
#include <vector>

namespace vellora::samples {

namespace {

constexpr wchar_t class_name[] = L"VelloraMdiFrame";

class Frame {
public:
    Frame() {
        create_window();
        const ControlFactory factory;
        for (const wchar_t* title : {L"From", L"To"})
            sheets_.push_back(std::make_unique<Sheet>(factory, window_, client_, title));
    }
    Frame(const Frame&) = delete;
    Frame& operator=(const Frame&) = delete;
    ~Frame() {
        sheets_.clear();
        if (window_)
            DestroyWindow(window_);
    }

    Sheet& sheet(std::size_t index) const { return *sheets_[index]; }
    void show() const {
        ShowWindow(window_, SW_SHOWNORMAL);
        SendMessageW(client_, WM_MDITILE, MDITILE_HORIZONTAL, 0);
    }
    HWND active() const { return reinterpret_cast<HWND>(SendMessageW(client_, WM_MDIGETACTIVE, 0, 0)); }
    void activate(const Sheet& sheet) const {
        SendMessageW(client_, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(sheet.window()), 0);
    }
    /// The frame's own keys, such as Ctrl+F6, go before those of the active child.
    bool takes(MSG& message) const {
        if (TranslateMDISysAccel(client_, &message))
            return true;
        const HWND current = active();
        for (const auto& sheet : sheets_)
            if (sheet->window() && sheet->window() == current)
                return sheet->takes(message);
        return false;
    }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept {
        auto* frame = reinterpret_cast<Frame*>(GetWindowLongPtrW(window, GWLP_USERDATA));
        if (frame)
            frame->handle(message, wparam);
        return DefFrameProcW(window, frame ? frame->client_ : nullptr, message, wparam, lparam);
    }
    void handle(UINT message, WPARAM wparam) {
        switch (message) {
        case WM_ACTIVATE:
            for (const auto& sheet : sheets_)
                if (sheet->window() && sheet->window() == active())
                    sheet->frame_activated(LOWORD(wparam) != WA_INACTIVE);
            break;
        case WM_DESTROY:
            PostQuitMessage(0);
            break;
        case WM_NCDESTROY:
            window_ = nullptr;
            break;
        }
    }
    void create_window() {
        WNDCLASSW frame{};
        frame.lpfnWndProc = procedure;
        frame.hInstance = GetModuleHandleW(nullptr);
        frame.hCursor = LoadCursorW(nullptr, IDC_ARROW);
        frame.lpszClassName = class_name;
        RegisterClassW(&frame);
        window_ = CreateWindowExW(0, class_name, L"Vellora in an MDI form", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                                  CW_USEDEFAULT, CW_USEDEFAULT, scaled(480), scaled(320), nullptr, nullptr,
                                  frame.hInstance, nullptr);
        CLIENTCREATESTRUCT children{nullptr, 1};
        client_ = CreateWindowExW(WS_EX_CLIENTEDGE, L"MDICLIENT", nullptr, WS_CHILD | WS_CLIPCHILDREN | WS_VISIBLE, 0,
                                  0, 0, 0, window_, nullptr, frame.hInstance, &children);
        if (!window_ || !client_)
            throw Failure(L"The frame cannot be made.");
        SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        RECT inside{};
        GetClientRect(window_, &inside);
        MoveWindow(client_, 0, 0, inside.right, inside.bottom, FALSE);
    }

    HWND window_ = nullptr;
    HWND client_ = nullptr;
    std::vector<std::unique_ptr<Sheet>> sheets_;
};

void play(Frame& frame, Steps& steps) {
    const User user(frame);
    Sheet& from = frame.sheet(0);
    Sheet& to = frame.sheet(1);
    frame.activate(from);
    user.type(text_field_of(from.control()), L"bern");
    frame.activate(to);
    user.type(text_field_of(to.control()), L"lima");
    steps.expect_same(L"the control of one child keeps its text", L"bern", text_of(from.control()));
    steps.expect_same(L"while the other one is typed into", L"lima", text_of(to.control()));
    SetFocus(text_field_of(to.control()));
    user.press(text_field_of(to.control()), VK_F4);
    steps.expect(L"the list opens over the frame", open_list() != nullptr);
    frame.activate(from);
    user.wait();
    steps.expect(L"the list closes when the other child is activated", open_list() == nullptr);
    steps.expect(L"which is active then", frame.active() == from.window());
    frame.activate(to);
    SetFocus(text_field_of(to.control()));
    frame.activate(from);
    frame.activate(to);
    user.wait();
    steps.expect(L"a child that is activated again gives the focus back", GetFocus() == text_field_of(to.control()));
    SendMessageW(to.window(), WM_CLOSE, 0, 0);
    user.wait();
    steps.expect(L"a child can be closed", to.window() == nullptr);
    steps.expect_same(L"and the control of the other one lives on", L"bern", text_of(from.control()));
}

void show(Steps* steps) {
    Frame frame;
    frame.show();
    if (steps)
        play(frame, *steps);
    else
        run_messages([&](MSG& message) { return frame.takes(message); });
}

} // namespace

} // namespace vellora::samples

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    using namespace vellora::samples;
    return run_sample(L"Vellora in an MDI form", [](const auto&, Steps* steps) { show(steps); });
}
