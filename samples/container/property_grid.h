// The property grid: every property with its value, by category. The value of the chosen one is edited in place: type,
// or F2; Enter takes it over, Esc restores it, F4 shows the values to choose from, a double click takes the next one.
#pragma once

#include "hosting/property_list.h"
#include "pane.h"
#include "shell.h"
#include "value_editor.h"

#include <commctrl.h>
#include <memory>
#include <string>
#include <vector>

namespace vellora::samples {

class PropertyGrid final : public Pane {
public:
    PropertyGrid(HWND parent, Shell& shell, HFONT font);
    ~PropertyGrid() override;

    /// Lists the properties of something else. The property that was chosen stays it where there is one of its name.
    void show(std::unique_ptr<PropertyList> list, const std::wstring& owner);
    /// Reads all values again. The owner may be called something else by now.
    void refresh(const std::wstring& owner);
    void choose(const std::wstring& property);
    /// Goes to the value of the chosen property.
    void edit();
    /// What F6 goes to.
    HWND list() const noexcept { return list_; }

    /// Takes over what stands in the field; false when it was refused.
    bool accept();
    /// The same while somebody types there; else true.
    bool accept_typed() { return !editor_.has_focus() || accept(); }
    const ValueEditor& editor() const noexcept { return editor_; }
    std::wstring shown_value(const std::wstring& property) const;
    std::vector<std::wstring> choices(const std::wstring& property) const;
    /// Of all that are in sight, with their places on the screen.
    std::vector<std::pair<std::wstring, RECT>> places() const;

private:
    enum Column { name_column, value_column };

    LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam) override;
    static LRESULT CALLBACK list_procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR id,
                                           DWORD_PTR self) noexcept;
    bool takes_key(UINT message, WPARAM wparam);
    void notified_by_list(NMHDR& notice);
    LRESULT draw(NMLVCUSTOMDRAW& row) const;
    void notified_by_editor(HWND from, int notice);
    void lay_out();
    void fill();
    void refresh_values();
    void offer();
    void place_editor();
    void take_next();
    void go(int rows);
    void restore();
    void leave_value();
    const Property* property_in(int row) const;
    const Property* chosen() const;
    int row_of(const std::wstring& property) const;
    std::wstring text_of(const Property& property) const;

    Shell& shell_;
    HFONT bold_;
    HWND label_;
    HWND list_;
    ValueEditor editor_;
    HIMAGELIST spacer_;
    std::unique_ptr<PropertyList> properties_;
    std::vector<int> rows_; // the property in each row, or none for the name of a category
    bool filling_ = false;
};

} // namespace vellora::samples
