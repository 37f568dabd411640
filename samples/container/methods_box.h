// The methods box: a member of the chosen control, fields for its arguments, and what came of the call.
#pragma once

#include "members.h"
#include "pane.h"
#include "shell.h"

#include <array>
#include <string>
#include <vector>

#include <wrl/client.h>

namespace vellora::samples {

class MethodsBox final : public Pane {
public:
    MethodsBox(HWND parent, Shell& shell, HFONT font);

    /// Offers the members of another control; null for none.
    void show(IUnknown* control);
    /// The height in pixels that lets all fields be seen.
    int wanted_height() const;
    /// The dialog manager's keys: Tab, Enter, mnemonics.
    bool takes(MSG& message) const;
    HWND list() const noexcept { return members_box_; }

    /// By name; false when there is none.
    bool choose(const std::wstring& member);
    /// `index` counts the arguments, the new value of a property last.
    void enter(std::size_t index, const std::wstring& argument) const;
    /// Calls the method or reads the property; with `sets` gives the property its new value.
    void call(bool sets);
    std::wstring result() const;
    HWND argument_field(std::size_t index) const { return arguments_[index].field; }

private:
    struct Argument {
        HWND label;
        HWND field;
    };

    LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam) override;
    void command(int id, int notice);
    void lay_out();
    void offer_arguments();
    const Member* chosen() const;
    std::vector<Parameter> parameters() const;
    std::wstring text_of(std::size_t index) const;
    std::vector<class Variant> values(const Member& member, bool sets) const;
    void show_result(const std::wstring& text) const;

    Shell& shell_;
    Microsoft::WRL::ComPtr<IDispatch> control_;
    std::vector<Member> members_;
    int line_;
    HWND label_;
    HWND members_box_;
    // In the order of Tab.
    std::array<Argument, 6> arguments_{};
    HWND call_button_ = nullptr;
    HWND set_button_ = nullptr;
    HWND result_ = nullptr;
};

} // namespace vellora::samples
