#include "demo_form.h"

#include "hosting/child_window.h"
#include "hosting/failure.h"

namespace vellora::samples {

namespace {

constexpr wchar_t class_name[] = L"VelloraDemo";
constexpr DWORD form_style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;
constexpr int text_field_id = 100;

SIZE window_size(SIZE client) {
    RECT outer{0, 0, client.cx, client.cy};
    AdjustWindowRect(&outer, form_style, FALSE);
    return {outer.right - outer.left, outer.bottom - outer.top};
}

void limit_size(MINMAXINFO& limits) {
    const SIZE smallest = window_size(smallest_client());
    limits.ptMinTrackSize = {smallest.cx, smallest.cy};
}

int height_of(HWND window) {
    RECT rect;
    GetWindowRect(window, &rect);
    return rect.bottom - rect.top;
}

} // namespace

DemoForm::DemoForm(LineFile& watcher) : watcher_(watcher) {
    create_window();
    create_boxes();
    create_plain_children();
    set_tab_order();
    lay_out();
    fill_boxes();
}

DemoForm::~DemoForm() {
    release_controls();
    if (window_)
        DestroyWindow(window_);
}

void DemoForm::create_window() {
    WNDCLASSW form{};
    form.lpfnWndProc = procedure;
    form.hInstance = GetModuleHandleW(nullptr);
    form.hIcon = LoadIconW(nullptr, IDI_APPLICATION);
    form.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    form.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    form.lpszClassName = class_name;
    RegisterClassW(&form);
    const SIZE size = window_size(usual_client());
    window_ =
        CreateWindowExW(WS_EX_CONTROLPARENT, class_name, L"Vellora demonstration", form_style, CW_USEDEFAULT,
                        CW_USEDEFAULT, size.cx, size.cy, nullptr, nullptr, form.hInstance, this);
    if (!window_)
        throw Failure(L"The form's window cannot be made.");
    focus_.emplace(window_);
}

void DemoForm::create_boxes() {
    frame_ = new FormFrame(window_);
    const ControlFactory factory;
    const ControlSite::Surroundings surroundings{window_, frame_, font_.object()};
    for (const BoxDefinition& definition : box_definitions())
        boxes_.push_back(std::make_unique<VelloraBox>(factory, surroundings, definition));
}

void DemoForm::create_plain_children() {
    text_label_ = make_label(window_, L"Ordinary text field");
    text_field_ = make_text_field(window_, L"Click here while a list is open", text_field_id);
    log_label_ = make_label(window_, L"Events");
    log_ = std::make_unique<EventLog>(window_);
    status_ = make_status_bar(window_);
    for (const HWND window : {text_label_, text_field_, log_label_, log_->window()})
        set_font(window, font_.handle());
    for (const auto& box : boxes_)
        set_font(box->label(), font_.handle());
}

void DemoForm::fill_boxes() {
    std::wstring summary;
    const ListData data = read_list_data([&](const std::wstring& problem) {
        log_->add_line(problem);
        watcher_.write({L"problem", problem});
        summary = problem;
    });
    for (const auto& box : boxes_) {
        box->fill(data);
        // Only now, so that the log begins with what the user does.
        box->listen([this, &box = *box](const Event& event) { on_event(box, event); });
    }
    if (summary.empty())
        summary = std::to_wstring(data.time_zones.size()) + L" time zones, " +
                  std::to_wstring(data.characters.size()) + L" characters";
    show_status(summary);
}

// Tab follows the order of the windows, and controls bring theirs along in the order they like.
void DemoForm::set_tab_order() const {
    std::vector<HWND> order;
    for (const auto& box : boxes_)
        order.push_back(box->window());
    order.push_back(text_field_);
    order.push_back(log_->window());
    HWND before = HWND_TOP;
    for (const HWND window : order) {
        SetWindowPos(window, before, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        before = window;
    }
}

void DemoForm::show(int how) const {
    ShowWindow(window_, how);
    UpdateWindow(window_);
}

bool DemoForm::takes(MSG& message) const {
    return frame_->takes(message) || IsDialogMessageW(window_, &message);
}

LRESULT CALLBACK DemoForm::procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept {
    if (message == WM_NCCREATE) {
        const auto* creation = reinterpret_cast<const CREATESTRUCTW*>(lparam);
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(creation->lpCreateParams));
    }
    auto* form = reinterpret_cast<DemoForm*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    try {
        if (form && form->window_)
            return form->handle(message, wparam, lparam);
    } catch (...) {
        // Exceptions must not reach the system. What failed is left undone.
    }
    return DefWindowProcW(window, message, wparam, lparam);
}

LRESULT DemoForm::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
    case WM_SIZE:
        lay_out();
        return 0;
    case WM_GETMINMAXINFO:
        limit_size(*reinterpret_cast<MINMAXINFO*>(lparam));
        return 0;
    case WM_NCACTIVATE:
        looks_active_ = wparam != FALSE;
        break;
    case WM_ACTIVATE:
        on_activated(LOWORD(wparam) != WA_INACTIVE);
        break;
    case WM_SETFOCUS:
        focus_->give_back();
        return 0;
    case WM_COMMAND:
        on_notified(LOWORD(wparam), HIWORD(wparam));
        return 0;
    case WM_DESTROY:
        release_controls();
        PostQuitMessage(0);
        return 0;
    case WM_NCDESTROY:
        window_ = nullptr;
        break;
    }
    return DefWindowProcW(window_, message, wparam, lparam);
}

void DemoForm::lay_out() {
    if (!status_ || boxes_.empty())
        return;
    // The status bar finds its place by itself, but forgets to wipe out its grip at the old one.
    SendMessageW(status_, WM_SIZE, 0, 0);
    InvalidateRect(status_, nullptr, TRUE);
    RECT client;
    GetClientRect(window_, &client);
    const FormLayout layout({client.right, client.bottom}, static_cast<int>(boxes_.size()) + 1,
                            {font_.height(), height_of(boxes_.front()->window()), height_of(status_)});
    auto cell = layout.cells.begin();
    for (const auto& box : boxes_)
        box->move(*cell++, layout.fields_width);
    move_window(text_label_, cell->label);
    move_window(text_field_, cell->field);
    move_window(log_label_, layout.log_label);
    move_window(log_->window(), layout.log);
}

void DemoForm::on_activated(bool active) {
    focus_->form_activated(active);
    frame_->form_activated(active);
}

// The focus went to a window that is no control, which nobody else tells the control in use.
void DemoForm::on_notified(int child_id, int notice) const {
    if (child_id == text_field_id && notice == EN_SETFOCUS)
        frame_->deactivate_current();
}

void DemoForm::on_event(const VelloraBox& box, const Event& event) {
    log_->add(box.name(), event);
    watcher_.write({L"event", box.name(), event.text()});
    if (event.name == L"Click")
        show_choice(box);
}

void DemoForm::show_choice(const VelloraBox& box) const {
    long row = 0, count = 0;
    check(box.control().get_ListIndex(&row), L"Asking for the chosen row");
    check(box.control().get_ListCount(&count), L"Asking for the number of rows");
    show_status(box.name() + L": row " + std::to_wstring(row + 1) + L" of " + std::to_wstring(count) + L", " +
                box.text());
}

void DemoForm::show_status(const std::wstring& text) const {
    SetWindowTextW(status_, text.c_str());
}

void DemoForm::release_controls() {
    boxes_.clear();
}

} // namespace vellora::samples
