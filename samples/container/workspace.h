// The table the form lies on. It scrolls when the form is larger.
#pragma once

#include "pane.h"

namespace vellora::samples {

class Workspace final : public Pane {
public:
    explicit Workspace(HWND parent);

private:
    LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam) override;
    void lay_out();
    void set_range(int bar, int whole, int page);
    void scroll(int bar, WPARAM request);
    HWND form() const { return GetWindow(window(), GW_CHILD); }
};

} // namespace vellora::samples
