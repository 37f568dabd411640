#include "value_editor.h"

#include "hosting/child_window.h"
#include "hosting/screen.h"

#include <commctrl.h>

namespace vellora::samples {

namespace {

HWND make(HWND list, const wchar_t* window_class, DWORD style, HFONT font) {
    const HWND window = CreateWindowExW(0, window_class, L"", WS_CHILD | style, 0, 0, 0, 0, list, nullptr,
                                        GetModuleHandleW(nullptr), nullptr);
    set_font(window, font);
    return window;
}

int height_of(HWND window) {
    RECT rect{};
    GetWindowRect(window, &rect);
    return static_cast<int>(rect.bottom - rect.top);
}

} // namespace

ValueEditor::ValueEditor(HWND list, HFONT font, Wishes wishes)
    : wishes_(std::move(wishes)), edit_(make(list, L"Edit", WS_BORDER | ES_AUTOHSCROLL, font)),
      combo_(make(list, L"ComboBox", WS_VSCROLL | CBS_DROPDOWN | CBS_AUTOHSCROLL, font)) {
    for (const HWND window : {edit_, GetWindow(combo_, GW_CHILD)})
        SetWindowSubclass(window, keys, 1, reinterpret_cast<DWORD_PTR>(this));
}

void ValueEditor::offer(const std::vector<std::wstring>& choices, bool writable) {
    hide();
    with_choices_ = !choices.empty() && writable;
    SendMessageW(combo_, CB_RESETCONTENT, 0, 0);
    for (const std::wstring& choice : choices)
        SendMessageW(combo_, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(choice.c_str()));
    SendMessageW(edit_, EM_SETREADONLY, !writable, 0);
}

void ValueEditor::show(const RECT& place) const {
    constexpr LONG list_height = 160;
    RECT all = place;
    if (with_choices_)
        all.bottom += scaled(list_height); // the list belongs to a combo box's height
    move_window(field(), all);
    ShowWindow(field(), SW_SHOWNA);
}

void ValueEditor::hide() const {
    ShowWindow(edit_, SW_HIDE);
    ShowWindow(combo_, SW_HIDE);
}

std::wstring ValueEditor::text() const {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(field())) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(field(), text.data(), static_cast<int>(text.size()))));
    return text;
}

void ValueEditor::set_text(const std::wstring& text) const {
    SetWindowTextW(field(), text.c_str());
    const LRESULT row =
        SendMessageW(combo_, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text.c_str()));
    if (with_choices_ && row >= 0)
        SendMessageW(combo_, CB_SETCURSEL, static_cast<WPARAM>(row), 0);
}

void ValueEditor::show_value(const std::wstring& value) {
    set_text(value);
    shown_ = text();
}

HWND ValueEditor::typed_into() const {
    return with_choices_ ? GetWindow(combo_, GW_CHILD) : edit_;
}

void ValueEditor::enter() const {
    SetFocus(typed_into());
    SendMessageW(typed_into(), EM_SETSEL, 0, -1);
}

void ValueEditor::drop_list() const {
    if (with_choices_)
        SendMessageW(combo_, CB_SHOWDROPDOWN, TRUE, 0);
}

bool ValueEditor::has_focus() const {
    const HWND focus = GetFocus();
    return focus == field() || (focus && GetParent(focus) == field());
}

bool ValueEditor::is_left(HWND from, int notice) const noexcept {
    return (from == edit_ && notice == EN_KILLFOCUS) || (from == combo_ && notice == CBN_KILLFOCUS);
}

int ValueEditor::height() const {
    return height_of(combo_);
}

LRESULT CALLBACK ValueEditor::keys(HWND window, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR,
                                   DWORD_PTR self) noexcept {
    auto& editor = *reinterpret_cast<ValueEditor*>(self);
    try {
        if (message == WM_KEYDOWN && editor.takes_key(wparam))
            return 0;
    } catch (...) {
        return 0; // exceptions must not reach the system
    }
    const bool own = wparam == VK_RETURN || wparam == VK_ESCAPE || wparam == VK_TAB;
    if (message == WM_CHAR && own && !editor.list_is_dropped())
        return 0; // a field of one line beeps at them
    return DefSubclassProc(window, message, wparam, lparam);
}

bool ValueEditor::list_is_dropped() const {
    return with_choices_ && SendMessageW(combo_, CB_GETDROPPEDSTATE, 0, 0);
}

bool ValueEditor::takes_key(WPARAM key) {
    if (list_is_dropped() && key != VK_TAB)
        return false;
    switch (key) {
    case VK_RETURN:
        if (wishes_.accept())
            wishes_.leave();
        return true;
    case VK_TAB:
        if (wishes_.accept())
            wishes_.go(GetKeyState(VK_SHIFT) < 0 ? -1 : 1);
        return true;
    case VK_ESCAPE:
        wishes_.restore();
        wishes_.leave();
        return true;
    case VK_UP:
    case VK_DOWN:
        if (with_choices_)
            return false;
        if (wishes_.accept())
            wishes_.go(key == VK_UP ? -1 : 1);
        return true;
    case VK_F2:
        wishes_.leave();
        return true;
    }
    return false;
}

} // namespace vellora::samples
