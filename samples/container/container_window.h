// The main window: the form on its table, the property grid, the methods box, the log of events, a line that says what
// happened, and the menu.
#pragma once

#include "form_document.h"
#include "form_surface.h"
#include "hosting/event_log.h"
#include "hosting/form_font.h"
#include "hosting/line_file.h"
#include "methods_box.h"
#include "pane.h"
#include "property_grid.h"
#include "questions.h"
#include "workspace.h"

#include <optional>
#include <string>

namespace vellora::samples {

class ContainerWindow final : public Pane, private Shell {
public:
    /// With the first form. Events also go to `watcher`.
    explicit ContainerWindow(LineFile& watcher);
    ~ContainerWindow() override;

    void show() const;
    /// Whether the window used up a message of the queue.
    bool takes(MSG& message);
    /// A command of the menu.
    void command(int id);

    /// Asks somebody else from now on.
    void ask(Questions& questions) { document_.emplace(surface_, questions, static_cast<Shell&>(*this)); }
    FormSurface& surface() noexcept { return surface_; }
    PropertyGrid& grid() noexcept { return grid_; }
    MethodsBox& methods() noexcept { return methods_; }
    const EventLog& log() const noexcept { return log_; }
    FormDocument& document() noexcept { return *document_; }
    /// What the status line says.
    const std::wstring& said() const noexcept { return said_; }
    /// Brings what the window shows up to date at once.
    void refresh();

private:
    LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam) override;
    void lay_out();
    void prepare_menu(HMENU menu);
    void show_title();
    bool may_close();
    std::wstring chosen_name() const;
    void go_round(bool backwards);
    HWND pane_with_focus() const;
    void copy_events();
    void fill_with_rows();
    void show_keys() const;
    void show_about();

    void say(const std::wstring& message) override;
    void selection_changed() override;
    void values_changed(bool design) override;
    void event_came(const PlacedControl& control, const Event& event) override;
    void edit_properties() override;

    LineFile& watcher_;
    FormFont font_;
    DialogQuestions dialogs_;
    HWND status_;
    Workspace workspace_;
    FormSurface surface_;
    PropertyGrid grid_;
    MethodsBox methods_;
    HWND log_label_;
    EventLog log_;
    std::optional<FormDocument> document_;
    HACCEL keys_;
    HWND last_focus_ = nullptr;
    std::wstring said_;
    bool refresh_due_ = false;
};

} // namespace vellora::samples
