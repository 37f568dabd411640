#include "form_surface.h"

#include "form_name.h"
#include "form_units.h"
#include "hosting/failure.h"
#include "wide_text.h"

#include <algorithm>

namespace vellora::samples {

namespace {

constexpr DWORD surface_style = WS_CHILD | WS_VISIBLE | WS_CAPTION | WS_THICKFRAME | WS_CLIPCHILDREN | WS_CLIPSIBLINGS;
constexpr SIZE usual_size{4680, 3195};

bool is_name(const std::wstring& name) {
    constexpr std::size_t longest = 40;
    return !name.empty() && name.size() <= longest && IsCharAlphaW(name.front()) &&
           std::ranges::all_of(name, [](wchar_t one) { return IsCharAlphaNumericW(one) || one == L'_'; });
}

bool has_name(const std::vector<FormControl>& controls, std::u16string_view name) {
    return std::ranges::any_of(
        controls, [name](const FormControl& one) { return same_name(one.name, name) || has_name(one.controls, name); });
}

} // namespace

FormSurface::FormSurface(HWND workspace, Shell& shell)
    : Pane(workspace, surface_style, WS_EX_CONTROLPARENT), shell_(shell), hosted_(std::make_unique<Controls>(window())),
      handles_(window()) {
    SendMessageW(window(), WM_NCACTIVATE, TRUE, 0);
}

FormSurface::~FormSurface() {
    clear();
}

std::wstring FormSurface::name() const {
    return wide(form_.name);
}

std::wstring FormSurface::caption() const {
    return wide(form_.caption);
}

void FormSurface::set_name(const std::wstring& name) {
    if (!is_name(name))
        throw Failure(L'"' + name + L"\" is no name: a letter, then letters, digits and _.");
    form_.name = utf16(name);
}

void FormSurface::set_caption(const std::wstring& caption) {
    form_.caption = utf16(caption);
    SetWindowTextW(window(), caption.c_str());
}

void FormSurface::resize(SIZE twips) {
    if (twips.cx < grid_twips || twips.cy < grid_twips || twips.cx > most_twips || twips.cy > most_twips)
        throw Failure(L"A form is between 120 and 300000 twips wide and high.");
    form_.client_width = twips.cx;
    form_.client_height = twips.cy;
    size_window();
}

void FormSurface::size_window() {
    RECT outer{0, 0, pixels_of(form_.client_width), pixels_of(form_.client_height)};
    AdjustWindowRectEx(&outer, surface_style, FALSE, WS_EX_CONTROLPARENT);
    SetWindowPos(window(), nullptr, 0, 0, outer.right - outer.left, outer.bottom - outer.top,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    SendMessageW(GetParent(window()), WM_SIZE, 0, 0); // it may have to scroll now
}

void FormSurface::load(const Form& form) {
    const Form before = this->form();
    try {
        replace(form, false);
    } catch (...) {
        replace(before, false);
        shell_.selection_changed();
        throw;
    }
    shell_.selection_changed();
}

Form FormSurface::form() const {
    if (running_)
        return design_;
    Form result = form_;
    for (const auto& control : controls_)
        result.controls.push_back(control->saved());
    return result;
}

void FormSurface::run(bool running) {
    if (running == running_)
        return;
    if (running)
        design_ = form();
    replace(design_, running);
    shell_.selection_changed();
    SetFocus(window());
    pass_focus_on(); // also when the form had it already
}

void FormSurface::replace(const Form& form, bool running) {
    const std::u16string chosen = chosen_ ? chosen_->form().name : u"";
    clear();
    problem_.clear();
    running_ = running;
    form_ = form;
    form_.controls.clear();
    if (form_.client_width <= 0)
        form_.client_width = usual_size.cx;
    if (form_.client_height <= 0)
        form_.client_height = usual_size.cy;
    for (const FormControl& control : form.controls)
        controls_.push_back(std::make_unique<PlacedControl>(control));
    SetWindowTextW(window(), caption().c_str());
    size_window();
    show_all();
    chosen_ = find(chosen);
    place_changed();
    InvalidateRect(window(), nullptr, TRUE);
}

// Many take their time, and nobody needs to see them come.
void FormSurface::show_all() {
    const HCURSOR pointer = SetCursor(LoadCursorW(nullptr, IDC_WAIT));
    SendMessageW(window(), WM_SETREDRAW, FALSE, 0);
    hosted_->design(!running_);
    constexpr std::size_t many = 50;
    std::size_t count = 0;
    for (PlacedControl* const control : in_tab_order()) {
        if (++count % many == 0)
            shell_.say(L"Control " + std::to_wstring(count) + L" of " + std::to_wstring(controls_.size()) + L" ...");
        show(*control, false);
    }
    set_tab_order();
    SendMessageW(window(), WM_SETREDRAW, TRUE, 0);
    RedrawWindow(window(), nullptr, nullptr, RDW_ERASE | RDW_FRAME | RDW_INVALIDATE | RDW_ALLCHILDREN);
    SetCursor(pointer);
}

// Tab follows the order of the windows, and controls bring theirs along in the order they like.
void FormSurface::set_tab_order() const {
    HWND before = HWND_TOP;
    for (const PlacedControl* const control : in_tab_order()) {
        const HWND one = control->window();
        if (!one)
            continue;
        SetWindowPos(one, before, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        before = one;
    }
}

void FormSurface::show(PlacedControl& control, bool is_new) {
    const std::wstring problem =
        control.show({*hosted_, factory_, window(), running_,
                      [this](const PlacedControl& one, const Event& event) { shell_.event_came(one, event); },
                      [this] { shell_.values_changed(!running_); }},
                     is_new);
    if (problem.empty())
        return;
    shell_.say(control.name() + L": " + problem);
    if (problem_.empty())
        problem_ = control.name() + L": " + problem;
}

void FormSurface::clear() {
    chosen_ = nullptr;
    end_drag();
    for (const auto& control : controls_)
        control->take_off(*hosted_);
    controls_.clear();
}

std::vector<PlacedControl*> FormSurface::in_tab_order() const {
    std::vector<PlacedControl*> order;
    for (const auto& control : controls_)
        order.push_back(control.get());
    std::ranges::stable_sort(order, {}, [](const PlacedControl* one) { return one->form().tab_index; });
    return order;
}

PlacedControl* FormSurface::find(const std::u16string& name) const {
    const auto found = std::ranges::find(controls_, name, [](const auto& one) { return one->form().name; });
    return found == controls_.end() ? nullptr : found->get();
}

void FormSurface::choose(PlacedControl* control) {
    if (control == chosen_)
        return;
    end_drag(); // what is dragged is what was chosen
    chosen_ = control;
    place_changed();
    shell_.selection_changed();
}

void FormSurface::choose_next(bool backwards) {
    std::vector<PlacedControl*> order = in_tab_order();
    std::erase_if(order, [](const PlacedControl* one) { return !one->has_place(); });
    order.insert(order.begin(), nullptr);
    if (backwards)
        std::ranges::reverse(order);
    auto now = std::ranges::find(order, chosen_);
    if (now != order.end())
        ++now;
    choose(now == order.end() ? order.front() : *now);
}

void FormSurface::insert(const std::wstring& program_id) {
    if (running_)
        throw Failure(L"Controls are inserted while the form is designed. F5 ends the run.");
    FormControl form;
    form.program_id = utf16(program_id);
    form.name = utf16(new_name(program_id));
    const auto index = static_cast<std::int32_t>(controls_.size());
    // Each a little further down, begun anew after some.
    constexpr std::int32_t rows = 12;
    form.left = grid_twips * 2 + index / rows % rows * grid_twips;
    form.top = grid_twips * 2 + index % rows * grid_twips * 4;
    form.width = grid_twips * 20;
    form.height = grid_twips * 3;
    form.tab_index = index;
    controls_.push_back(std::make_unique<PlacedControl>(form));
    show(*controls_.back(), true);
    choose(controls_.back().get());
    shell_.values_changed(true);
}

void FormSurface::remove_chosen() {
    if (running_ || !chosen_)
        throw Failure(running_ ? L"Controls are deleted while the form is designed. F5 ends the run."
                               : L"No control is chosen.");
    PlacedControl* const gone = chosen_;
    choose_next(true);
    gone->take_off(*hosted_);
    std::erase_if(controls_, [&](const auto& one) { return one.get() == gone; });
    shell_.values_changed(true);
}

std::wstring FormSurface::new_name(const std::wstring& program_id) const {
    const std::wstring base = program_id.substr(program_id.find_last_of(L'.') + 1);
    for (int number = 1;; ++number)
        if (std::wstring name = base + std::to_wstring(number); !is_taken(name, nullptr))
            return name;
}

bool FormSurface::is_taken(const std::wstring& name, const PlacedControl* own) const {
    return std::ranges::any_of(controls_, [own, name = utf16(name)](const auto& one) {
        return (one.get() != own && same_name(one->form().name, name)) || has_name(one->form().controls, name);
    });
}

void FormSurface::rename(PlacedControl& control, const std::wstring& name) {
    if (!is_name(name))
        throw Failure(L'"' + name + L"\" is no name: a letter, then letters, digits and _.");
    if (is_taken(name, &control))
        throw Failure(L"There is a control " + name + L" already.");
    control.rename(name);
}

void FormSurface::place_changed() {
    if (!running_ && chosen_ && chosen_->window()) {
        chosen_->take_over_place();
        handles_.show(chosen_->place());
    } else {
        handles_.hide();
    }
}

PlacedControl* FormSurface::control_at(POINT point) const {
    for (const auto& control : controls_) {
        const RECT place = control->place();
        if (control->window() && PtInRect(&place, point))
            return control.get();
    }
    return nullptr;
}

} // namespace vellora::samples
