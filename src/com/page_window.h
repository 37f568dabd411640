// The window of a property page: a field for each property, and a box that chooses among numbered ones.
#pragma once

#include "com/page_field.h"
#include "com/page_model.h"

namespace vellora::com {

class PageWindow {
public:
    class Listener {
    public:
        virtual void page_changed() = 0;

    protected:
        ~Listener() = default;
    };

    PageWindow(PageModel& model, Listener& listener) : model_(model), listener_(listener) {}
    PageWindow(const PageWindow&) = delete;
    PageWindow& operator=(const PageWindow&) = delete;
    ~PageWindow() { destroy(); }

    /// Hidden at first. Throws the platform's failure.
    void create(HWND parent, const RECT& place);
    void destroy() noexcept;
    HWND handle() const noexcept { return dialog_; }
    /// Shows what the model holds.
    void load();
    /// Leads the user to the value and says what is wrong with it.
    void complain(const PageModel::Refusal& refusal);
    /// False for a property that is not on the page.
    bool go_to(DISPID property);

    /// In pixels, with the fonts of the user.
    static SIZE size(const PageClass& page);

private:
    static INT_PTR CALLBACK procedure(HWND dialog, UINT message, WPARAM wparam, LPARAM lparam) noexcept;
    void fill(HWND dialog);
    void on_command(int id, int notification);
    void on_change(const PageField& field);
    void load_numbers();
    void show_fields(bool numbered) const;
    std::int32_t chosen_number() const;

    PageModel& model_;
    Listener& listener_;
    HWND dialog_ = nullptr;
    HWND numbers_ = nullptr;
    std::vector<PageField> fields_;
    bool loading_ = false;
};

} // namespace vellora::com
