// A control with a filled list, opened and closed the ways a user and a program do.
#pragma once

#include "com/support/host_test.h"

namespace vellora::test {

class OpenListTest : public HostTest {
protected:
    void SetUp() override;
    /// Lets `site()` and `c()` mean another control.
    void use(Site& site);
    /// A control that shows check boxes, which only a saved setting switches on.
    Site& place_with_check_boxes();
    Site& site() { return *site_; }
    _Vellora& c() { return *control_.Get(); }
    void fill(int rows, short columns = 1);
    /// Opens it and lets the messages run.
    void open();
    HWND control() { return window_of(*site_); }
    HWND list() { return list_of(floating_window() ? floating_window() : control()); }
    bool is_open() { return floating_window() != nullptr; }
    Lines events() { return site_->events().take(); }
    /// Presses and releases the left button in the middle of a rectangle of the screen.
    void click(HWND window, const RECT& on_screen);
    void click_button();
    void key(HWND window, WORD code);
    /// Holds Shift, Ctrl or Alt down for the thread until the end.
    class Held {
    public:
        explicit Held(int modifier) : modifier_(modifier) { set(0x80); }
        ~Held() { set(0); }

    private:
        void set(BYTE state) const {
            BYTE keys[256];
            GetKeyboardState(keys);
            keys[modifier_] = state;
            SetKeyboardState(keys);
        }
        int modifier_;
    };
    long list_index();
    std::wstring text();
    /// Another control of the host's own that can take the focus.
    HWND make_edit();

private:
    Site* site_ = nullptr;
    ComPtr<_Vellora> control_;
};

} // namespace vellora::test
