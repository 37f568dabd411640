// The commands of the menu and the way of the keys through the window.
#include "commands.h"
#include "container_window.h"
#include "first_form.h"
#include "hosting/failure.h"

#include <cstring>

namespace vellora::samples {

namespace {

constexpr wchar_t keys_text[] = L"Everywhere\n"
                                L"    F5: run the form, and go back to its design\n"
                                L"    F6, Ctrl+Tab: next pane; with Shift the one before\n"
                                L"    Ctrl+T: next control\n\n"
                                L"On the form while it is designed\n"
                                L"    Tab, Shift+Tab: choose a control\n"
                                L"    Arrows: move it; with Shift: size it; with Ctrl: by pixels\n"
                                L"    Ins, Del: insert a control, delete the chosen one\n"
                                L"    Enter: edit its properties; Esc: choose the form\n\n"
                                L"In the property grid\n"
                                L"    F2, Enter or typing: edit the value\n"
                                L"    Enter: take it over; Esc: restore it; F4: list the values\n\n"
                                L"In the methods box\n"
                                L"    Enter: call, or set in the field of a new value\n"
                                L"    Arrays are typed {1, 2} or {\"one\", \"two\"}";

void put_on_clipboard(HWND owner, const std::wstring& text) {
    const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
    if (!memory || !OpenClipboard(owner)) {
        GlobalFree(memory);
        throw Failure(L"The clipboard cannot be used at the moment.");
    }
    std::memcpy(GlobalLock(memory), text.c_str(), bytes);
    GlobalUnlock(memory);
    EmptyClipboard();
    SetClipboardData(CF_UNICODETEXT, memory);
    CloseClipboard();
}

} // namespace

void ContainerWindow::command(int id) {
    // What stands in the grid's field counts, whoever looks at the form next.
    if (!grid_.accept_typed())
        return;
    switch (id) {
    case ID_FILE_NEW:
        document_->start_anew();
        break;
    case ID_FILE_OPEN:
        document_->open();
        break;
    case ID_FILE_SAVE:
        document_->save();
        break;
    case ID_FILE_SAVE_AS:
        document_->save_as();
        break;
    case ID_FILE_EXIT:
        PostMessageW(window(), WM_CLOSE, 0, 0);
        break;
    case ID_EDIT_INSERT:
        surface_.insert(L"VelloraCTL.Vellora");
        SetFocus(surface_.window());
        break;
    case ID_EDIT_DELETE:
        surface_.remove_chosen();
        break;
    case ID_EDIT_PROPERTY:
        edit_properties();
        break;
    case ID_EDIT_PAGES:
        if (!surface_.chosen())
            throw Failure(L"Choose a control first: its pages are shown.");
        surface_.chosen()->show_pages(window());
        values_changed(false); // what changed the control has told
        break;
    case ID_EDIT_COPY_LOG:
        copy_events();
        break;
    case ID_VIEW_RUN:
        surface_.run(!surface_.running());
        say(surface_.running() ? L"The form is running. F5 goes back to its design."
                               : L"The form is being designed, as it was before the run.");
        break;
    case ID_VIEW_FILL:
        fill_with_rows();
        break;
    case ID_VIEW_CLEAR_LOG:
        log_.clear();
        break;
    case ID_VIEW_NEXT_CONTROL:
        surface_.choose_next(false);
        break;
    case ID_VIEW_NEXT_PANE:
    case ID_VIEW_PREVIOUS_PANE:
        go_round(id == ID_VIEW_PREVIOUS_PANE);
        break;
    case ID_HELP_KEYS:
        show_keys();
        break;
    case ID_HELP_ABOUT:
        show_about();
        break;
    }
    show_title();
}

void ContainerWindow::prepare_menu(HMENU menu) {
    const bool running = surface_.running(), control = surface_.chosen() && surface_.chosen()->control();
    const auto enable = [menu](UINT id, bool possible) {
        EnableMenuItem(menu, id, MF_BYCOMMAND | (possible ? MF_ENABLED : MF_GRAYED));
    };
    enable(ID_EDIT_INSERT, !running);
    enable(ID_EDIT_DELETE, !running && surface_.chosen());
    enable(ID_EDIT_PAGES, control);
    enable(ID_VIEW_FILL, running);
    MENUITEMINFOW run{};
    run.cbSize = sizeof run;
    run.fMask = MIIM_STRING;
    run.dwTypeData = const_cast<wchar_t*>(running ? L"&Design\tF5" : L"&Run\tF5");
    SetMenuItemInfoW(menu, ID_VIEW_RUN, FALSE, &run);
}

bool ContainerWindow::takes(MSG& message) {
    const bool copies = message.message == WM_KEYDOWN && message.wParam == 'C' && GetKeyState(VK_CONTROL) < 0;
    if (copies && message.hwnd == log_.window()) {
        copy_events();
        return true;
    }
    const bool to_headers = message.wParam == VK_F6 && !contains(message.hwnd); // within an open list
    if (!to_headers && TranslateAcceleratorW(window(), keys_, &message))
        return true;
    if (contains(message.hwnd) && !surface_.contains(message.hwnd) &&
        (message.message == WM_LBUTTONDOWN || message.message == WM_KEYDOWN))
        surface_.left();
    return surface_.takes(message) || methods_.takes(message);
}

HWND ContainerWindow::pane_with_focus() const {
    const HWND focus = GetFocus();
    for (const Pane* const pane : {static_cast<const Pane*>(&grid_), static_cast<const Pane*>(&methods_)})
        if (pane->contains(focus))
            return pane->window();
    return focus == log_.window() ? focus : surface_.window();
}

void ContainerWindow::go_round(bool backwards) {
    const HWND panes[] = {surface_.window(), grid_.window(), methods_.window(), log_.window()};
    constexpr std::size_t count = ARRAYSIZE(panes);
    std::size_t now = 0;
    while (now + 1 < count && panes[now] != pane_with_focus())
        ++now;
    surface_.left();
    SetFocus(panes[(now + (backwards ? count - 1 : 1)) % count]);
}

void ContainerWindow::copy_events() {
    put_on_clipboard(window(), log_.lines());
    say(L"The events are on the clipboard.");
}

void ContainerWindow::fill_with_rows() {
    if (!surface_.running())
        throw Failure(L"Rows are added while the form runs: F5, then Ctrl+R.");
    bool filled = false;
    for (const auto& one : surface_.controls())
        if (Microsoft::WRL::ComPtr<_Vellora> control;
            one->control() && SUCCEEDED(one->control()->QueryInterface(IID_PPV_ARGS(&control)))) {
            fill_with_samples(*control.Get());
            filled = true;
        }
    if (!filled)
        throw Failure(L"There is no Vellora on the form.");
    say(L"There are rows in the list now. Its button or F4 opens it.");
    values_changed(false);
}

void ContainerWindow::show_keys() const {
    MessageBoxW(window(), keys_text, L"Keys", MB_OK | MB_ICONINFORMATION);
}

void ContainerWindow::show_about() {
    for (const auto& one : surface_.controls()) {
        Microsoft::WRL::ComPtr<_Vellora> control;
        if (one->control() && SUCCEEDED(one->control()->QueryInterface(IID_PPV_ARGS(&control))))
            return void(control->About());
    }
    MessageBoxW(window(), L"A form for trying out the Vellora control.", L"Vellora test container", MB_OK);
}

} // namespace vellora::samples
