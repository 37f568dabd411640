#include "com/support/peers_test.h"

#include "widgets/win32/handles.h"

namespace vellora::test {

namespace {

std::string numbers(std::int16_t button, std::int16_t shift, float x, float y) {
    return std::to_string(button) + ' ' + std::to_string(shift) + ' ' + std::to_string(static_cast<int>(x)) +
           ' ' + std::to_string(static_cast<int>(y));
}

template <class Reaction, class... Arguments>
void react(const Reaction& reaction, Arguments&... arguments) {
    if (reaction) {
        reaction(arguments...);
    }
}

} // namespace

void TextBoxJournal::text_key_down(std::int16_t& key_code, std::int16_t& shift) {
    note("key down " + std::to_string(key_code) + ' ' + std::to_string(shift));
    react(on_key_down, key_code);
}

void TextBoxJournal::text_key_press(std::int16_t& key_ascii) {
    note("key press " + std::to_string(key_ascii));
    react(on_key_press, key_ascii);
}

void TextBoxJournal::text_key_up(std::int16_t& key_code, std::int16_t& shift) {
    note("key up " + std::to_string(key_code) + ' ' + std::to_string(shift));
}

void TextBoxJournal::text_changed() {
    note("changed");
    react(on_changed);
}

void TextBoxJournal::text_mouse_down(std::int16_t& button, std::int16_t& shift, float& x, float& y) {
    note("mouse down " + numbers(button, shift, x, y));
}

// The real mouse may stand anywhere; its moves come without a button.
void TextBoxJournal::text_mouse_move(std::int16_t& button, std::int16_t& shift, float& x, float& y) {
    if (button != 0) {
        note("mouse move " + numbers(button, shift, x, y));
    }
}

void TextBoxJournal::text_mouse_up(std::int16_t& button, std::int16_t& shift, float& x, float& y) {
    note("mouse up " + numbers(button, shift, x, y));
}

void TextBoxJournal::text_double_click() {
    note("double click");
}

void TextBoxJournal::text_got_focus() {
    note("got focus");
    react(on_got_focus);
}

void ButtonJournal::button_clicked(int index) {
    note("clicked ", index, on_clicked);
}
void ButtonJournal::button_pressed(int index) {
    note("pressed ", index, on_pressed);
}
void ButtonJournal::button_released(int index) {
    note("released ", index, on_released);
}

void ButtonJournal::note(const char* event, int index, const std::function<void()>& reaction) {
    lines_.push_back(event + std::to_string(index));
    react(reaction);
}

PeersTest::PeersTest() : surface_(form_.window()) {
    other_ = CreateWindowExW(0, L"BUTTON", L"other", WS_CHILD | WS_VISIBLE, 300, 200, 60, 24, form_.window(),
                             nullptr, nullptr, nullptr);
    SetWindowPos(surface_.handle(), nullptr, 20, 20, 200, 24, SWP_NOZORDER | SWP_SHOWWINDOW);
    SetForegroundWindow(form_.window());
    focus_elsewhere();
    pump();
}

void PeersTest::post(WindowHandle window, UINT message, WPARAM wparam, LPARAM lparam) {
    PostMessageW(reinterpret_cast<HWND>(window), message, wparam, lparam);
    pump();
}

void PeersTest::type(WindowHandle window, std::u16string_view text) {
    for (const char16_t unit : text) {
        post(window, WM_CHAR, unit, 1);
    }
}

void PeersTest::focus_elsewhere() {
    SetFocus(other_);
}

HWND window_of(const Widget& widget) {
    return reinterpret_cast<HWND>(widget.window());
}

COLORREF pixel(HWND window, int x, int y) {
    UpdateWindow(window);
    const win32::WindowDc dc(window);
    return GetPixel(dc.get(), x, y);
}

} // namespace vellora::test
