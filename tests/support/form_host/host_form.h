// The form that a screen test drives: its controls, its own edits, and what happened on it.
#pragma once

#include "support/container/container.h"
#include "support/form_host/json.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace vellora::test {

class HostForm {
public:
    explicit HostForm(const Form::Look& look) : container_(look) {}

    Container& container() noexcept { return container_; }
    Form& form() noexcept { return container_.form(); }

    /// A Vellora control of that name; `bag` holds settings it is loaded with, null makes a new one.
    void create(const std::string& name, const RECT& place, const Json& bag, bool design);
    void create_edit(const std::string& name, const RECT& place);
    /// Any other child of the form, which is then known by its name as the edits are.
    void adopt_window(const std::string& name, HWND window) { edits_[name] = window; }
    /// Throws JsonError when there is no such control or edit (any more).
    Site& control(const std::string& name);
    HWND edit(const std::string& name);
    /// The own window of a control, 0 when it has none.
    HWND window(const std::string& name);
    void destroy(const std::string& name);
    void destroy_form();

    /// Name of the control or edit that a window belongs to, or an empty text.
    std::string owner_of(HWND window);

    /// What happened since the last time it was asked: "Vellora1.DropDown(I4 0)".
    std::vector<std::string> take_events();
    /// Runs in the event, at most `times` times.
    using Reaction = std::function<void(EventArguments&)>;
    void react(const std::string& name, const std::string& event, Reaction reaction, int times);

private:
    void adopt(const std::string& name, Site& site);

    std::map<std::string, Site*> controls_;
    std::map<std::string, HWND> edits_;
    std::vector<std::string> events_;
    // Ends first: controls raise events while they go.
    Container container_;
};

} // namespace vellora::test
