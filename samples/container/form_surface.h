// The form: its window with the controls on it. Designed, they can be chosen, moved and sized; running, they live. A
// run begins from the settings of the design and leaves the design as it was.
#pragma once

#include "design_hand.h"
#include "form_text.h"
#include "handles.h"
#include "pane.h"
#include "placed_control.h"
#include "shell.h"

#include <memory>
#include <vector>

namespace vellora::samples {

class FormSurface final : public Pane {
public:
    FormSurface(HWND workspace, Shell& shell);
    ~FormSurface() override;

    /// Shows another form, designed. When that fails the one before stays.
    void load(const Form& form);
    /// As a save would write it; during a run the design that it began from.
    Form form() const;
    /// Why the first control that cannot be had is not there; empty when all are.
    const std::wstring& problem() const noexcept { return problem_; }
    bool running() const noexcept { return running_; }
    void run(bool running);

    const std::vector<std::unique_ptr<PlacedControl>>& controls() const noexcept { return controls_; }
    /// Null for the form itself.
    PlacedControl* chosen() const noexcept { return chosen_; }
    void choose(PlacedControl* control);
    /// The next one in the order of Tab, with the form itself before the first.
    void choose_next(bool backwards);
    /// A new control, which is chosen then.
    void insert(const std::wstring& program_id);
    void remove_chosen();
    /// Throws a Failure when the name is no name, or another control's.
    void rename(PlacedControl& control, const std::wstring& name);
    /// The chosen control was moved or sized, or may have done so by itself.
    void place_changed();

    std::wstring name() const;
    std::wstring caption() const;
    SIZE size_in_twips() const noexcept { return {form_.client_width, form_.client_height}; }
    void set_name(const std::wstring& name);
    void set_caption(const std::wstring& caption);
    void resize(SIZE twips);

    /// Whether the running controls, or the dialog manager, used up a message of the queue.
    bool takes(MSG& message);
    void form_activated(bool active);
    /// The person turned to another part of the window.
    void left();

private:
    LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam) override;
    LRESULT handle_design(UINT message, WPARAM wparam, LPARAM lparam);
    bool design_key(WPARAM key);
    void reveal_chosen() const;
    void press(POINT mouse);
    void begin_drag(POINT mouse, unsigned edges);
    void end_drag();
    void follow_focus();
    void pass_focus_on();
    LRESULT edge_at(LPARAM mouse);
    void erase(HDC canvas) const;
    void paint_grid(HDC canvas) const;
    void size_window();
    void sized_by_user();

    void replace(const Form& form, bool running);
    void show_all();
    void set_tab_order() const;
    void show(PlacedControl& control, bool is_new);
    void clear();
    PlacedControl* find(const std::u16string& name) const;
    /// By a control other than `own`, or by one that lies on a control.
    bool is_taken(const std::wstring& name, const PlacedControl* own) const;
    PlacedControl* control_at(POINT point) const;
    std::wstring new_name(const std::wstring& program_id) const;
    std::vector<PlacedControl*> in_tab_order() const;

    Shell& shell_;
    ControlFactory factory_;
    Form form_;   // without its controls
    Form design_; // whole, while the form runs
    std::vector<std::unique_ptr<PlacedControl>> controls_;
    PlacedControl* chosen_ = nullptr;
    std::unique_ptr<Controls> hosted_;
    std::wstring problem_;
    Handles handles_;
    DesignDrag drag_;
    HWND followed_ = nullptr; // the focus that was looked at last
    bool running_ = false;
};

} // namespace vellora::samples
