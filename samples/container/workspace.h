// The table the form lies on. It scrolls when the form is larger.
#pragma once

#include "pane.h"

namespace vellora::samples {

/// The form sends it: lparam is the RECT of its inside that is to be seen.
constexpr UINT reveal_message = WM_APP + 5;

class Workspace final : public Pane {
public:
    explicit Workspace(HWND parent);

private:
    LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam) override;
    void lay_out();
    void set_range(int bar, int whole, int page);
    void scroll(int bar, WPARAM request);
    void reveal(RECT place);
    void go_to(int bar, int position);
    HWND form() const { return GetWindow(window(), GW_CHILD); }
};

} // namespace vellora::samples
