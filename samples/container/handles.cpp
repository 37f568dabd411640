#include "handles.h"

#include "hosting/screen.h"

namespace vellora::samples {

namespace {

constexpr unsigned grips[] = {grip_left | grip_top,    grip_top,    grip_right | grip_top,   grip_left, grip_right,
                              grip_left | grip_bottom, grip_bottom, grip_right | grip_bottom};
constexpr LONG side = 7;

const wchar_t* pointer_for(unsigned edges) {
    if (edges == grip_left || edges == grip_right)
        return IDC_SIZEWE;
    if (edges == grip_top || edges == grip_bottom)
        return IDC_SIZENS;
    return edges == (grip_left | grip_top) || edges == (grip_right | grip_bottom) ? IDC_SIZENWSE : IDC_SIZENESW;
}

/// Where on a line from `low` to `high` the middle of a handle lies.
LONG middle(LONG low, LONG high, bool at_low, bool at_high) {
    return at_low ? low : at_high ? high : (low + high) / 2;
}

} // namespace

class Handle final : public Pane {
public:
    Handle(HWND surface, unsigned edges) : Pane(surface, WS_CHILD | WS_CLIPSIBLINGS), edges_(edges) {}

    void show_at(const RECT& place) const {
        const int size = scaled(side);
        const LONG x = middle(place.left, place.right, edges_ & grip_left, edges_ & grip_right);
        const LONG y = middle(place.top, place.bottom, edges_ & grip_top, edges_ & grip_bottom);
        // Outside the control, so that its own edge stays in sight.
        const LONG left = edges_ & grip_left ? x - size : edges_ & grip_right ? x : x - size / 2;
        const LONG top = edges_ & grip_top ? y - size : edges_ & grip_bottom ? y : y - size / 2;
        SetWindowPos(window(), HWND_TOP, left, top, size, size, SWP_NOACTIVATE | SWP_SHOWWINDOW);
    }

private:
    LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam) override {
        switch (message) {
        case WM_PAINT:
            paint();
            return 0;
        case WM_SETCURSOR:
            SetCursor(LoadCursorW(nullptr, pointer_for(edges_)));
            return TRUE;
        case WM_LBUTTONDOWN:
            SendMessageW(GetParent(window()), grip_message, edges_, 0);
            return 0;
        }
        return Pane::handle(message, wparam, lparam);
    }
    void paint() const {
        PAINTSTRUCT paint{};
        const HDC canvas = BeginPaint(window(), &paint);
        const RECT all = inside();
        FillRect(canvas, &all, GetSysColorBrush(COLOR_HIGHLIGHT));
        FrameRect(canvas, &all, GetSysColorBrush(COLOR_WINDOW));
        EndPaint(window(), &paint);
    }

    unsigned edges_;
};

Handles::Handles(HWND surface) {
    for (std::size_t i = 0; i < handles_.size(); ++i)
        handles_[i] = std::make_unique<Handle>(surface, grips[i]);
}

Handles::~Handles() = default;

void Handles::show(const RECT& place) const {
    for (const auto& handle : handles_)
        handle->show_at(place);
}

void Handles::hide() const {
    for (const auto& handle : handles_)
        ShowWindow(handle->window(), SW_HIDE);
}

} // namespace vellora::samples
