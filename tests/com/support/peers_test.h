// Fixture for the native peers: a shown form with a control's surface on it, and a journal of what peers
// report.
#pragma once

#include "runtime/host_error.h"
#include "support/container/form.h"
#include "widgets/check_button.h"
#include "widgets/text_box.h"
#include "widgets/win32/surface_window.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace vellora::test {

using Lines = std::vector<std::string>;

/// The number of the error that the call raises, 0 for none.
template <class Call>
std::int32_t raised(Call call) {
    try {
        call();
    } catch (const HostError& error) {
        return error.number();
    }
    return 0;
}

/// Writes down every event and then calls the reaction to it, if there is one.
class TextBoxJournal final : public TextBoxListener {
public:
    explicit TextBoxJournal(Lines& lines) : lines_(lines) {}

    std::function<void(std::int16_t& code)> on_key_down;
    std::function<void(std::int16_t& code)> on_key_press;
    std::function<void()> on_changed;
    std::function<bool()> may_change; // asked before each change, unless there is none
    std::function<void()> on_got_focus;

    void text_key_down(std::int16_t& key_code, std::int16_t& shift) override;
    void text_key_press(std::int16_t& key_ascii) override;
    void text_key_up(std::int16_t& key_code, std::int16_t& shift) override;
    bool text_may_change() override { return !may_change || may_change(); }
    void text_changed() override;
    void text_mouse_down(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
    void text_mouse_move(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
    void text_mouse_up(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
    void text_double_click() override;
    void text_got_focus() override;

private:
    void note(std::string line) { lines_.push_back(std::move(line)); }

    Lines& lines_;
};

class ButtonJournal final : public CheckButtonListener {
public:
    explicit ButtonJournal(Lines& lines) : lines_(lines) {}

    std::function<void()> on_pressed;
    std::function<void()> on_released;
    std::function<void()> on_clicked;

    void button_clicked(int index) override;
    void button_pressed(int index) override;
    void button_released(int index) override;

private:
    void note(const char* event, int index, const std::function<void()>& reaction);

    Lines& lines_;
};

class SurfaceJournal final : public SurfaceListener {
public:
    explicit SurfaceJournal(Lines& lines) : lines_(lines) {}

    void surface_resized() override { lines_.push_back("resized"); }
    void surface_lost_focus() override { lines_.push_back("lost focus"); }
    void surface_focus_left() override { lines_.push_back("focus left"); }
    void surface_font_changed() override { lines_.push_back("font changed"); }
    void surface_withdrawn() override { lines_.push_back("hidden"); }
    void surface_destroyed() override { lines_.push_back("destroyed"); }

private:
    Lines& lines_;
};

class HostJournal final : public win32::SurfaceHost {
public:
    explicit HostJournal(Lines& lines) : lines_(lines) {}

    void surface_wants_height(int pixels) override {
        lines_.push_back("host: height " + std::to_string(pixels));
    }
    void surface_focus_entered() override { lines_.push_back("host: focus entered"); }
    void surface_focus_left() override { lines_.push_back("host: focus left"); }
    void surface_list_opened_or_closed() override { lines_.push_back("host: list opened or closed"); }
    LRESULT surface_object(HWND, WPARAM, LPARAM) override { return 0; }

private:
    Lines& lines_;
};

class PeersTest : public testing::Test {
protected:
    PeersTest();

    /// Lets all waiting messages be handled.
    void pump() { form_.pump(); }
    /// As if the user did it: through the message queue.
    void post(WindowHandle window, UINT message, WPARAM wparam = 0, LPARAM lparam = 0);
    void type(WindowHandle window, std::u16string_view text);
    /// Takes the focus away to a window of the form that is no part of the control.
    void focus_elsewhere();
    /// The lines since the last call.
    Lines take_lines() { return std::exchange(lines_, {}); }

    Form form_;
    HWND other_ = nullptr;
    win32::SurfaceWindow surface_;
    Lines lines_;
};

HWND window_of(const Widget& widget);
/// The colour on the screen of a point in the window's client area.
COLORREF pixel(HWND window, int x, int y);

} // namespace vellora::test
