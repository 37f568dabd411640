#include "container_window.h"

#include "commands.h"
#include "first_form.h"
#include "hosting/child_window.h"
#include "hosting/screen.h"
#include "shown_properties.h"

#include <algorithm>
#include <commctrl.h>

namespace vellora::samples {

namespace {

constexpr UINT refresh_message = WM_APP + 4;
constexpr SIZE usual_size{1000, 700}, smallest_size{640, 460};

HWND make_log_label(HWND parent, HFONT font) {
    const HWND label = make_label(parent, L"Events");
    set_font(label, font);
    return label;
}

SIZE size_on_screen() {
    RECT work{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    return {std::min<LONG>(scaled(usual_size.cx), work.right - work.left),
            std::min<LONG>(scaled(usual_size.cy), work.bottom - work.top)};
}

} // namespace

ContainerWindow::ContainerWindow(LineFile& watcher)
    : Pane(nullptr, WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT,
           LoadMenuW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDR_CONTAINER))),
      watcher_(watcher), dialogs_(window()), status_(make_status_bar(window())), workspace_(window()),
      surface_(workspace_.window(), *this), grid_(window(), *this, font_.handle()),
      methods_(window(), *this, font_.handle()), log_label_(make_log_label(window(), font_.handle())),
      log_(window(), LBS_EXTENDEDSEL),
      keys_(LoadAcceleratorsW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDR_CONTAINER))) {
    set_font(log_.window(), font_.handle());
    ask(dialogs_);
    surface_.load(first_form());
    surface_.choose_next(false);
    const SIZE size = size_on_screen();
    SetWindowPos(window(), nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    say(L"F5 runs the form. F6 goes round the panes, F1 tells all keys.");
    show_title();
}

ContainerWindow::~ContainerWindow() = default;

void ContainerWindow::show() const {
    ShowWindow(window(), SW_SHOWNORMAL);
    UpdateWindow(window());
    SetFocus(surface_.window());
}

LRESULT ContainerWindow::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
    case WM_SIZE:
        lay_out();
        return 0;
    case WM_GETMINMAXINFO:
        reinterpret_cast<MINMAXINFO*>(lparam)->ptMinTrackSize = {scaled(smallest_size.cx), scaled(smallest_size.cy)};
        return 0;
    case WM_GETFONT:
        return reinterpret_cast<LRESULT>(font_.handle());
    case WM_COMMAND:
        if (lparam == 0)
            command(LOWORD(wparam));
        return 0;
    case WM_INITMENUPOPUP:
        prepare_menu(GetMenu(window()));
        return 0;
    case WM_ACTIVATE:
        if (LOWORD(wparam) == WA_INACTIVE && contains(GetFocus()))
            last_focus_ = GetFocus();
        surface_.form_activated(LOWORD(wparam) != WA_INACTIVE);
        break;
    case WM_SETFOCUS:
        SetFocus(contains(last_focus_) ? last_focus_ : surface_.window());
        return 0;
    case problem_message:
        say(*reinterpret_cast<const std::wstring*>(lparam));
        return 0;
    case refresh_message:
        refresh();
        return 0;
    case WM_CLOSE:
        if (!may_close())
            return 0;
        break;
    case WM_QUERYENDSESSION:
        return may_close();
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    }
    return Pane::handle(message, wparam, lparam);
}

// What is being typed belongs to the form.
bool ContainerWindow::may_close() {
    return grid_.accept_typed() && document_->may_go();
}

// The form and its events on the left; its properties and members on the right.
void ContainerWindow::lay_out() {
    SendMessageW(status_, WM_SIZE, 0, 0);
    InvalidateRect(status_, nullptr, TRUE);
    RECT client = inside(), status{};
    GetWindowRect(status_, &status);
    const LONG gap = scaled(8), bottom = client.bottom - (status.bottom - status.top) - gap;
    const LONG right_width = std::clamp<LONG>(client.right * 37 / 100, scaled(260), scaled(440));
    const LONG right = client.right - gap - right_width, left_end = right - gap;
    const LONG log_top = bottom - (bottom - gap) * 30 / 100;
    const LONG methods_top = bottom - std::min<LONG>(methods_.wanted_height(), (bottom - gap) / 2);
    const LONG label = font_.height() + scaled(4);
    move_window(workspace_.window(), {gap, gap, left_end, log_top - gap});
    move_window(log_label_, {gap, log_top, left_end, log_top + label});
    move_window(log_.window(), {gap, log_top + label, left_end, bottom});
    move_window(grid_.window(), {right, gap, client.right - gap, methods_top - gap});
    move_window(methods_.window(), {right, methods_top, client.right - gap, bottom});
    // The windows took their pictures along, over one another.
    RedrawWindow(window(), nullptr, nullptr, RDW_ERASE | RDW_INVALIDATE | RDW_ALLCHILDREN);
}

void ContainerWindow::say(const std::wstring& message) {
    said_ = message;
    SetWindowTextW(status_, message.c_str());
    UpdateWindow(status_);
}

void ContainerWindow::show_title() {
    const std::wstring title = document_->title() + (document_->changed() ? L"*" : L"") +
                               (surface_.running() ? L" (running)" : L"") + L" - Vellora test container";
    wchar_t before[300] = L"";
    GetWindowTextW(window(), before, ARRAYSIZE(before));
    if (title != before)
        SetWindowTextW(window(), title.c_str());
}

void ContainerWindow::selection_changed() {
    const PlacedControl* const chosen = surface_.chosen();
    grid_.show(std::make_unique<ShownProperties>(surface_), chosen_name());
    methods_.show(chosen ? chosen->control() : nullptr);
    if (document_)
        show_title();
}

std::wstring ContainerWindow::chosen_name() const {
    return surface_.chosen() ? surface_.chosen()->name() : surface_.name();
}

// Changes come in swarms, also in the middle of others.
void ContainerWindow::values_changed(bool design) {
    if (design && !surface_.running() && document_)
        document_->touch();
    if (!refresh_due_)
        PostMessageW(window(), refresh_message, 0, 0);
    refresh_due_ = true;
}

void ContainerWindow::refresh() {
    refresh_due_ = false;
    surface_.place_changed();
    grid_.refresh(chosen_name());
    show_title();
}

void ContainerWindow::event_came(const PlacedControl& control, const Event& event) {
    log_.add_named(control.name(), event);
    watcher_.write({L"event", control.name(), event.named_text()});
}

void ContainerWindow::edit_properties() {
    grid_.edit();
}

} // namespace vellora::samples
